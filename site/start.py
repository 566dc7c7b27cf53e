"""The first page, and the page of the search."""
import json


def js_text(text):
    """Text as a literal of a classic script."""
    return json.dumps(text, ensure_ascii=False).replace("</", "<\\/")


QUESTIONS = [
    (
        "Which slot holds which bin, and how long is the array?",
        "reference/DFTFwd_RToCCS.html",
        (
            "Each routine’s page draws its array slot by slot: CCS has N+2 elements at even N and N+1 at odd N, Pack"
            " and Perm N."
        ),
    ),
    (
        "Who divides by N?",
        "tutorials/flags.html",
        "You choose with each call. NumPy’s convention is DivInvByN: nothing forward, 1/N inverse.",
    ),
    (
        "Is it thread-safe?",
        "reference/zulgDFTFwd_CToC_64fc.html",
        "Yes. There is no state. Only a plan of the DCT-IV above 32 points serves one thread at a time.",
    ),
    ("How fast is it?", "figures/index.html#speed", "Each length beside FFTW, KissFFT and GSL, as measured."),
    (
        "How exact is it?",
        "figures/index.html#accuracy",
        (
            "Pooled errors of at most 3 units of 2<sup>−53</sup> in double; singles of the DFT and Hartley transforms"
            " are computed in double and rounded once."
        ),
    ),
    ("I come from another library", "tutorials/moving.html", "Call by call, from FFTW, KissFFT and NumPy."),
]


def build(site, data):
    library = data.library
    questions = "".join(
        f'<li><a href="{path}">{question}</a><span>{answer}</span></li>' for question, path, answer in QUESTIONS
    )
    parts = [
        (
            "reference/index.html",
            "Reference",
            (
                f"{len(library.exports)} routines, {len(library.batches)} batches, C++ "
                "and Python: formula, shapes, slots, scale, counts, errors, times, an example each"
            ),
        ),
        (
            "atlas/index.html",
            "Atlas",
            f"{len(data.graphs)} graphs: construction, factors, data flow, constants, text beside machine code",
        ),
        (
            "playground/index.html",
            "Playground",
            "The kernels in this browser: draw or load a signal and see its spectrum",
        ),
        ("tutorials/index.html", "Tutorials", "From the first transform to filter banks and the MDCT"),
        ("figures/index.html", "Figures", "Speed, errors, counts and size as plots"),
    ]
    cards = "".join(f'<li><a href="{path}">{title}</a><span>{text}</span></li>' for path, title, text in parts)
    body = f"""<h1>zulgenpx</h1>
<p class="lead">Small signal transforms: each length is a routine of its own, straight-line arithmetic with settled
operation counts. Nothing is set up, nothing is allocated, and any number of threads may call at once.</p>
<ul class="cards">{cards}</ul>
<h2>What is asked first</h2>
<ul class="cards">{questions}</ul>
<h2>Find a routine</h2>
<p>Type into the search above, or press <kbd>/</kbd> first: “fft 15”, “inverse pack 8”, “dct4”. Names are made of
family, length and element: <code>zulgDFTFwd_CToC_15_64fc</code> is the forward complex DFT of 15 points on complex
doubles.</p>
"""
    site.page("index.html", "zulgenpx: small signal transforms", body, words="start home")
    site.page(
        "search.html",
        "Search",
        (
            '<h1>Search</h1><p id="found-count" role="status"></p><ul id="all-found"></ul>'
            '<noscript><p>Without scripts: <a href="reference/index.html#all">all routines, one to a line</a>.</p>'
            "</noscript>"
        ),
    )
