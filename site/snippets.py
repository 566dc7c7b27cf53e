"""Short programs for each routine, in C, C++ and Python, with what they print. What is printed comes from the
definition of the transform, computed here, and not from the library: a test runs the programs and compares."""
import math

from library import C_TYPES, points, size_of


def decimals(element):
    """Decimals that hold whatever way a single is rounded."""
    return 4 if element.startswith("64") else 2


def form_of(element):
    return f"%.{decimals(element)}f"


def shown(element, value):
    return f"{value:.{decimals(element)}f}"


def ramp_bin(n, k):
    """Bin k of the DFT of 1, 2, ... n."""
    if k == 0:
        return complex(n * (n + 1) / 2, 0)
    angle = math.pi * k / n
    return complex(-n / 2, n / 2 * math.cos(angle) / math.sin(angle))


class Snippets:
    """`c`, `cpp` and `python` are the texts; None where the language has no such call."""

    def __init__(self, c, cpp=None, python=None):
        self.c, self.cpp, self.python = c, cpp, python


def c_program(lines, header="zulgenpx.h"):
    includes = ["#include <stdio.h>"] + (["#include <stdlib.h>"] if any("malloc" in line for line in lines) else [])
    return "\n".join(
        includes
        + [f'#include "{header}"', "", "int main(void) {"]
        + ["    " + line if line else "" for line in lines]
        + ["    return 0;", "}", ""]
    )


def cpp_program(includes, lines):
    return "\n".join(
        [
            f"#include {name}"
            for name in ["<array>"] * any("std::array" in line for line in lines)
            + ["<complex>"] * any("std::complex" in line for line in lines)
            + ["<cstdio>"]
            + ["<vector>"] * any("std::vector" in line for line in lines)
        ]
        + [f'#include "{includes}"', "", "int main() {"]
        + ["    " + line for line in lines]
        + ["}", ""]
    )


def real_type(element):
    return "double" if element.startswith("64") else "float"


def numpy_type(element):
    return {"32f": "float32", "64f": "float64", "32fc": "complex64", "64fc": "complex128"}[element]


def of(export):
    family = export["family"]
    if family == "version":
        return version()
    if family == "DCT4":
        return dct4(export)
    if "BufferSize" in export["name"]:
        return buffer_size(export)
    return {"CToC": complex_dft, "DFTF": real_forward, "DFTI": real_inverse, "Hart": hartley, "WHT": walsh_hadamard}[
        "CToC" if "CToC" in family else family[:4]
    ](export)


def call(export, *arguments):
    """The call in C, with a length where the routine takes one."""
    return f"if ({export['name']}({', '.join(str(each) for each in arguments)}) != StatusOk) return 1;"


def lengths(export, usual=15):
    size = size_of(export)
    return (size, []) if size else (usual, [usual])


def complex_dft(export):
    n, extra = lengths(export)
    element, real = export["element"], real_type(export["element"])
    kind, python_type, form = C_TYPES[element], numpy_type(element), form_of(element)
    if export["sense"] == "forward":
        value = ramp_bin(n, 1)
        c = [
            f"{kind} x[{n}] = {{{{0, 0}}}}, X[{n}];",
            f"for (int n = 0; n < {n}; ++n) x[n].re = n + 1;",
            call(export, "x", "X", *extra, "NoDivByAny"),
        ]
        cpp = [
            f"std::array<std::complex<{real}>, {n}> x, X;",
            f"for (int n = 0; n < {n}; ++n) x[n] = {real}(n + 1);",
            f"zulgenpx::dft<{n}>(x, X);" if not extra else "zulgenpx::dft(x, X);    // the length of the arrays",
        ]
        python = [f"x = np.arange(1, {n + 1}).astype(np.{python_type})", "X = zulgenpx.fft(x)"]
        array = "X"
    else:
        angle = 2 * math.pi / n
        value = complex(3 + math.cos(angle), math.sin(angle))
        c = [
            f"{kind} X[{n}] = {{{{{3 * n}, 0}}, {{{n}, 0}}}}, x[{n}];",
            call(export, "X", "x", *extra, "DivInvByN") + "  /* 1/N here */",
        ]
        cpp = [
            f"std::array<std::complex<{real}>, {n}> X{{{3 * n}, {n}}}, x;",
            f"zulgenpx::inverse_dft<{n}>(X, x);" if not extra else "zulgenpx::inverse_dft(X, x);",
        ]
        python = [
            f"X = np.zeros({n}, np.{python_type})",
            f"X[:2] = {3 * n}, {n}",
            "x = zulgenpx.ifft(X)                    # 1/N here",
        ]
        array = "x"
    if n == 2:
        printed = shown(element, value.real)
        c += [f'printf("{form}\\n", {array}[1].re);  /* prints {printed} */']
        cpp += [f'std::printf("{form}\\n", {array}[1].real());  // prints {printed}']
        python += [f'print(f"{{{array}[1].real:{form[1:]}}}")  # prints {printed}']
    else:
        printed = f"{shown(element, value.real)} {shown(element, value.imag)}"
        c += [f'printf("{form} {form}\\n", {array}[1].re, {array}[1].im);  /* prints {printed} */']
        cpp += [f'std::printf("{form} {form}\\n", {array}[1].real(), {array}[1].imag());  // prints {printed}']
        python += [f'print(f"{{{array}[1].real:{form[1:]}}} {{{array}[1].imag:{form[1:]}}}")  # prints {printed}']
    return Snippets(c_program(c), cpp_program("zulgenpx.hpp", cpp), python_program(python))


def python_program(lines):
    return "\n".join(["import numpy as np", "import zulgenpx", ""] + lines + [""])


def half_spectrum_size(layout, n):
    return n // 2 * 2 + 2 if layout == "CCS" else n


def place_of(layout, n, k, part):
    """The slot of a part of bin k."""
    if k == 0:
        return 0
    if 2 * k == n:
        return {"CCS": n, "Pack": n - 1, "Perm": 1}[layout]
    first = 2 * k if layout == "CCS" or (layout == "Perm" and n % 2 == 0) else 2 * k - 1
    return first + (part == "im")


def template_arguments(n, extra, layout):
    """Of a real transform in C++: a length that is an argument of the routine is none of the template."""
    kept = f"zulgenpx::layout::{layout.lower()}"
    return f"<{kept}>" if extra else f"<{n}, {kept}>"


def real_forward(export):
    n, extra = lengths(export)
    element, real, layout = export["element"], real_type(export["element"]), export["spectrum"]["layout"]
    kind, size = C_TYPES[element], half_spectrum_size(export["spectrum"]["layout"], n)
    value = ramp_bin(n, 1)
    re, im = place_of(layout, n, 1, "re"), place_of(layout, n, 1, "im")
    numbers = [(f"X[{re}]", value.real)] + ([(f"X[{im}]", value.imag)] if n > 2 else [])
    comment = f"Re X[1] is in slot {re}" + (f", Im X[1] in slot {im}" if n > 2 else "")
    printed = " ".join(shown(element, number) for _, number in numbers)
    form, arguments = " ".join([form_of(element)] * len(numbers)), ", ".join(name for name, _ in numbers)
    c = [
        f"{kind} x[{n}], X[{size}];  /* {comment} */",
        f"for (int n = 0; n < {n}; ++n) x[n] = n + 1;",
        call(export, "x", "X", *extra, "NoDivByAny"),
        f'printf("{form}\\n", {arguments});  /* prints {printed} */',
    ]
    named = template_arguments(n, extra, layout)
    cpp = [
        f"std::array<{real}, {n}> x;",
        f"std::array<{real}, {size}> X;",
        f"for (int n = 0; n < {n}; ++n) x[n] = {real}(n + 1);",
        f"zulgenpx::real_dft{named}(x, X);",
        f'std::printf("{form}\\n", {arguments});  // prints {printed}',
    ]
    x = f"x = np.arange(1, {n + 1}).astype(np.{numpy_type(element)})"
    if layout == "CCS":
        parts = ["X[1].real", "X[1].imag"][: len(numbers)]
        python = [x, "X = zulgenpx.rfft(x)                    # the complex bins, in memory the layout CCS"]
    else:
        parts = [name for name, _ in numbers]
        python = [x, f'X = zulgenpx.rfft(x, layout="{layout.lower()}")']
    shown_parts = " ".join(f"{{{part}:{form_of(element)[1:]}}}" for part in parts)
    python += [f'print(f"{shown_parts}")  # prints {printed}']
    return Snippets(c_program(c), cpp_program("zulgenpx.hpp", cpp), python_program(python))


def real_inverse(export):
    """R0 = 3 N, R1 = N: 3 + 2 cos(2 pi n/N), or at two points 3 + (-1)^n."""
    n, extra = lengths(export)
    element, real, layout = export["element"], real_type(export["element"]), export["spectrum"]["layout"]
    kind, size = C_TYPES[element], half_spectrum_size(export["spectrum"]["layout"], n)
    place, form = place_of(layout, n, 1, "re"), form_of(element)
    printed = shown(element, 3 - 1 if n == 2 else 3 + 2 * math.cos(2 * math.pi / n))
    c = [
        f"{kind} X[{size}] = {{0}}, x[{n}];",
        f"X[0] = {3 * n};      /* bin 0 */",
        f"X[{place}] = {n};      /* the real part of bin 1 */",
        call(export, "X", "x", *extra, "DivInvByN"),
        f'printf("{form}\\n", x[1]);  /* prints {printed} */',
    ]
    named = template_arguments(n, extra, layout)
    cpp = [
        f"std::array<{real}, {size}> X{{}};",
        f"std::array<{real}, {n}> x;",
        f"X[0] = {3 * n};",
        f"X[{place}] = {n};",
        f"zulgenpx::inverse_real_dft{named}(X, x);",
        f'std::printf("{form}\\n", x[1]);  // prints {printed}',
    ]
    if layout == "CCS":
        python = [
            f"X = np.zeros({n // 2 + 1}, np.{'complex128' if real == 'double' else 'complex64'})",
            f"X[:2] = {3 * n}, {n}",
            f"x = zulgenpx.irfft(X, {n})",
        ]
    else:
        python = [
            f"X = np.zeros({n}, np.{numpy_type(element)})",
            f"X[0], X[{place}] = {3 * n}, {n}",
            f'x = zulgenpx.irfft(X, layout="{layout.lower()}")',
        ]
    python += [f'print(f"{{x[1]:{form[1:]}}}")  # prints {printed}']
    return Snippets(c_program(c), cpp_program("zulgenpx.hpp", cpp), python_program(python))


def hartley(export):
    n, extra = lengths(export)
    element, real = export["element"], real_type(export["element"])
    value, form = ramp_bin(n, 1), form_of(element)
    printed = shown(element, value.real - (value.imag if n > 2 else 0))
    c = [
        f"{C_TYPES[element]} x[{n}], h[{n}];",
        f"for (int n = 0; n < {n}; ++n) x[n] = n + 1;",
        call(export, "x", "h", *extra, "NoDivByAny"),
        f'printf("{form}\\n", h[1]);  /* prints {printed} */',
    ]
    cpp = [
        f"std::array<{real}, {n}> x, h;",
        f"for (int n = 0; n < {n}; ++n) x[n] = {real}(n + 1);",
        f"zulgenpx::hartley<{n}>(x, h);" if not extra else "zulgenpx::hartley(x, h);",
        f'std::printf("{form}\\n", h[1]);  // prints {printed}',
    ]
    python = [
        f"x = np.arange(1, {n + 1}).astype(np.{numpy_type(element)})",
        "h = zulgenpx.hartley(x)",
        f'print(f"{{h[1]:{form[1:]}}}")  # prints {printed}',
    ]
    return Snippets(c_program(c), cpp_program("zulgenpx.hpp", cpp), python_program(python))


def walsh_hadamard(export):
    order = export["order"] or 9
    extra = [] if export["order"] else [order]
    element, real, n = export["element"], real_type(export["element"]), 1 << order
    kind, printed = C_TYPES[element], f"{n * (n + 1) // 2} {-n // 2}"
    needs_buffer = order >= 8
    storage = "static " if n > 1024 else ""
    c = [f"{storage}{kind} x[{n}];", f"for (int n = 0; n < {n}; ++n) x[n] = n + 1;"]
    if needs_buffer:
        c += [
            "int32_t bytes;",
            f"if (zulgWHTGetBufferSize_{element}({order}, &bytes) != StatusOk) return 1;",
            f"{kind}* buffer = ({kind}*)malloc((size_t)bytes);",
            "if (buffer == NULL) return 1;",
        ]
    c += [
        call(export, "x", "x", *extra, "NoDivByAny", "buffer" if needs_buffer else "NULL")
        + ("" if needs_buffer else "  /* no buffer is needed */"),
        f'printf("%.0f %.0f\\n", x[0], x[1]);  /* prints {printed} */',
    ] + ["free(buffer);"] * needs_buffer
    cpp = [f"std::vector<{real}> x({n});", f"for (int n = 0; n < {n}; ++n) x[n] = {real}(n + 1);"]
    angle = f"<{order}>" if not extra else ""
    if needs_buffer:
        cpp += [
            f"std::vector<{real}> buffer(zulgenpx::wht_buffer_size({order}));",
            f"zulgenpx::wht{angle}(x, x, buffer);",
        ]
    else:
        cpp += [f"zulgenpx::wht{angle}(x, x);"]
    cpp += [f'std::printf("%.0f %.0f\\n", x[0], x[1]);  // prints {printed}']
    python = [
        f"x = np.arange(1, {n + 1}).astype(np.{numpy_type(element)})",
        "h = zulgenpx.wht(x)",
        f'print(f"{{h[0]:.0f}} {{h[1]:.0f}}")  # prints {printed}',
    ]
    return Snippets(c_program(c), cpp_program("zulgenpx.hpp", cpp), python_program(python))


def buffer_size(export, header="zulgenpx.h", sizes=None):
    element = export["element"]
    bytes_ = {"32f": 2048, "64f": 4096}[element] if sizes is None else sizes
    c = ["int32_t bytes = 0;", call(export, 9, "&bytes"), f'printf("%d\\n", (int)bytes);  /* prints {bytes_} */']
    real = real_type(element)
    cpp = [f'std::printf("%zu\\n", zulgenpx::wht_buffer_size(9) * sizeof({real}));  // prints {bytes_}']
    return Snippets(c_program(c, header), cpp_program("zulgenpx.hpp", cpp), None)


def dct4_value(n):
    """Output 0 for the input 1, 2, ... n."""
    return sum((i + 1) * math.cos(math.pi * (i + 0.5) * 0.5 / n) for i in range(n))


def dct4(export):
    element, real, n = export["element"], real_type(export["element"]), 64
    kind, form = C_TYPES[element], "%.1f" if element == "32f" else "%.4f"
    printed = form % dct4_value(n)
    plan = f"ZulgDCT4Plan_{element}"
    c = [f"static {kind} x[{n}], y[{n}];", f"for (int n = 0; n < {n}; ++n) x[n] = n + 1;", f"{plan}* plan;"]
    if "InitAlloc" in export["name"] or "Free" in export["name"] or export["name"] == f"zulgDCT4_{element}":
        c += [
            f"if (zulgDCT4InitAlloc_{element}(&plan, {n}) != StatusOk) return 1;  /* from the core library */",
            f"if (zulgDCT4_{element}(x, y, plan) != StatusOk) return 1;",
            f'printf("{form}\\n", y[0]);  /* prints {printed} */',
            f"zulgDCT4Free_{element}(plan);",
        ]
    else:
        c += [
            "int32_t bytes;",
            f"if (zulgDCT4GetSize_{element}({n}, &bytes) != StatusOk) return 1;",
            "uint8_t* block = (uint8_t*)malloc((size_t)bytes);",
            "if (block == NULL) return 1;",
            f"if (zulgDCT4Init_{element}(&plan, {n}, block) != StatusOk) return 1;",
            f"if (zulgDCT4_{element}(x, y, plan) != StatusOk) return 1;",
            f'printf("{form}\\n", y[0]);  /* prints {printed} */',
            "free(block);  /* the plan is in it */",
        ]
    cpp = [
        f"std::vector<{real}> x({n}), y({n});",
        f"for (int n = 0; n < {n}; ++n) x[n] = {real}(n + 1);",
        f"zulgenpx::dct4_plan<{real}> plan({n});    // owns its block",
        "plan(x, y);",
        f'std::printf("{form}\\n", y[0]);  // prints {printed}',
    ]
    python = [
        f"x = np.arange(1, {n + 1}).astype(np.{numpy_type(element)})",
        f"plan = zulgenpx.DCT4Plan({n}, np.{numpy_type(element)})",
        "y = plan(x)",
        f'print(f"{{y[0]:{form[1:]}}}")  # prints {printed}',
    ]
    return Snippets(c_program(c), cpp_program("zulgenpx.hpp", cpp), python_program(python))


def version():
    c = [
        "const LibVersion* version = zulgenGetLibVersion();",
        'printf("%d.%d\\n", (int)version->major, (int)version->minor);  /* prints 7.0 */',
    ]
    cpp = [
        "const LibVersion* version = zulgenGetLibVersion();",
        'std::printf("%d.%d\\n", int(version->major), int(version->minor));  // prints 7.0',
    ]
    python = ["version = zulgenpx.library_version()", 'print(f"{version.major}.{version.minor}")  # prints 7.0']
    return Snippets(c_program(c), cpp_program("zulgenpx.hpp", cpp), python_program(python))


def of_batch(batch):
    """Two transforms, one after the other."""
    found = batch_in_c(batch)
    if "BufferSize" not in batch["name"]:
        found.cpp, found.python = batch_in_cpp(batch), batch_in_python(batch)
    elif batch["family"] == "WHT":
        found.cpp = cpp_program(
            "zulgenpx_batch.hpp",
            [
                f'std::printf("%zu\\n", zulgenpx::batch::wht_buffer_size(9) * sizeof({real_type(batch["element"])}));'
                f'  // prints {8192 if batch["element"] == "64f" else 4096}'
            ],
        )
    return found


def batch_in_cpp(batch):
    family, element, real = batch["family"], batch["element"], real_type(batch["element"])
    form, value, n = form_of(element), ramp_bin(15, 1), 15
    space = "zulgenpx::batch::single" if "Single" in batch["name"] else "zulgenpx::batch"
    layout = batch.get("spectrum", {}).get("layout")
    size = half_spectrum_size(layout, n) if layout else n
    named = f"<zulgenpx::layout::{layout.lower()}>" if layout else ""
    ramp = f"for (int n = 0; n < 30; ++n) x[n] = {real}(n % 15 + 1);"

    def arrays(kind, *sizes):
        return [f"std::vector<{kind}> {name}({2 * count});" for name, count in sizes]

    def rows(name, count):
        return f"zulgenpx::rows({name}, {count})"

    if family == "DCT4":
        form = "%.1f" if element == "32f" else "%.4f"
        lines = arrays(real, ("x", 64), ("y", 64)) + [
            f"for (int n = 0; n < 128; ++n) x[n] = {real}(n % 64 + 1);",
            f"zulgenpx::dct4_plan<{real}> plan(64);",
            f"{space}::dct4(plan, {rows('x', 64)}, {rows('y', 64)});",
            f'std::printf("{form}\\n", y[64]);  // prints {form % dct4_value(64)}',
        ]
    elif family == "WHT":
        lines = arrays(real, ("x", 16)) + [
            f"for (int n = 0; n < 32; ++n) x[n] = {real}(n % 16 + 1);",
            f"{space}::wht({rows('x', 16)}, {rows('x', 16)});",
            'std::printf("%.0f %.0f\\n", x[16], x[17]);  // prints 136 -8',
        ]
    elif family == "DFTFwd_CToC":
        lines = arrays(f"std::complex<{real}>", ("x", n), ("X", n)) + [
            ramp,
            f"{space}::dft({rows('x', n)}, {rows('X', n)});",
            (
                f'std::printf("{form} {form}\\n", X[16].real(), X[16].imag());'
                f"  // prints {shown(element, value.real)} {shown(element, value.imag)}"
            ),
        ]
    elif family == "DFTInv_CToC":
        lines = arrays(f"std::complex<{real}>", ("X", n), ("x", n)) + [
            "X[15] = 45;",
            "X[16] = 15;",
            f"{space}::inverse_dft({rows('X', n)}, {rows('x', n)});",
            f'std::printf("{form}\\n", x[16].real());  // prints {shown(element, 3 + math.cos(2 * math.pi / n))}',
        ]
    elif family.startswith("DFTFwd"):
        place = size + place_of(layout, n, 1, "re")
        lines = arrays(real, ("x", n), ("X", size)) + [
            ramp,
            f"{space}::real_dft{named}({rows('x', n)}, {rows('X', size)});",
            (
                f'std::printf("{form} {form}\\n", X[{place}], X[{place + 1}]);'
                f"  // prints {shown(element, value.real)} {shown(element, value.imag)}"
            ),
        ]
    elif family.startswith("DFTInv"):
        lines = arrays(real, ("X", size), ("x", n)) + [
            f"X[{size}] = 45;",
            f"X[{size + place_of(layout, n, 1, 're')}] = 15;",
            f"{space}::inverse_real_dft{named}({rows('X', size)}, {rows('x', n)});",
            f'std::printf("{form}\\n", x[16]);  // prints {shown(element, 3 + 2 * math.cos(2 * math.pi / n))}',
        ]
    else:
        lines = arrays(real, ("x", n), ("h", n)) + [
            ramp,
            f"{space}::hartley({rows('x', n)}, {rows('h', n)});",
            f'std::printf("{form}\\n", h[16]);  // prints {shown(element, value.real - value.imag)}',
        ]
    return cpp_program("zulgenpx_batch.hpp", lines)


def batch_in_python(batch):
    family, element, value, n = batch["family"], batch["element"], ramp_bin(15, 1), 15
    layout, form = batch.get("spectrum", {}).get("layout"), form_of(batch["element"])[1:]
    options = ', precision="single"' if "Single" in batch["name"] else ""
    kept = f', layout="{layout.lower()}"' if layout in ("Pack", "Perm") else ""

    def rows_of(count):
        return f"x = np.tile(np.arange(1, {count + 1}), (2, 1)).astype(np.{numpy_type(element)})"

    if family == "DCT4":
        form = ".1f" if element == "32f" else ".4f"
        return python_program(
            [
                rows_of(64),
                f"plan = zulgenpx.DCT4Plan(64, np.{numpy_type(element)})",
                "y = plan(x)",
                f'print(f"{{y[1, 0]:{form}}}")  # prints {f"%{form}" % dct4_value(64)}',
            ]
        )
    if family == "WHT":
        lines = [rows_of(16), "h = zulgenpx.wht(x)", 'print(f"{h[1, 0]:.0f} {h[1, 1]:.0f}")  # prints 136 -8']
    elif family == "Hartley":
        due = shown(element, value.real - value.imag)
        lines = [rows_of(n), f"h = zulgenpx.hartley(x{options})", f'print(f"{{h[1, 1]:{form}}}")  # prints {due}']
    elif family == "DFTFwd_CToC" or layout == "CCS" and "Fwd" in family:
        call_ = "fft" if "CToC" in family else "rfft"
        lines = [
            rows_of(n),
            f"X = zulgenpx.{call_}(x{options})",
            (
                f'print(f"{{X[1, 1].real:{form}}} {{X[1, 1].imag:{form}}}")'
                f"  # prints {shown(element, value.real)} {shown(element, value.imag)}"
            ),
        ]
    elif "Fwd" in family:
        place = place_of(layout, n, 1, "re")
        lines = [
            rows_of(n),
            f"X = zulgenpx.rfft(x{kept}{options})",
            (
                f'print(f"{{X[1, {place}]:{form}}} {{X[1, {place + 1}]:{form}}}")'
                f"  # prints {shown(element, value.real)} {shown(element, value.imag)}"
            ),
        ]
    else:
        complex_type = "complex128" if element.startswith("64") else "complex64"
        width, kind = (
            (n, complex_type) if "CToC" in family else (8, complex_type) if not kept else (n, numpy_type(element))
        )
        call_ = "ifft(X" if "CToC" in family else f"irfft(X, 15{kept}" if not kept else f"irfft(X{kept}"
        place = 1 if not kept else place_of(layout, n, 1, "re")
        due = 3 + (1 if "CToC" in family else 2) * math.cos(2 * math.pi / n)
        part = ".real" if "CToC" in family else ""
        lines = [
            f"X = np.zeros((2, {width}), np.{kind})",
            f"X[1, 0], X[1, {place}] = 45, 15",
            f"x = zulgenpx.{call_}{options})",
            f'print(f"{{x[1, 1]{part}:{form}}}")  # prints {shown(element, due)}',
        ]
    return python_program(lines)


def batch_in_c(batch):
    family, element, name = batch["family"], batch["element"], batch["name"]
    kind, count = C_TYPES[element], 2
    if "BufferSize" in name:
        argument = 9 if family == "WHT" else 64
        width = 8 if element == "64f" else 4
        single = {"32f": 2048, "64f": 4096}[element]
        printed = single + 512 * width if family == "WHT" else 64 * width
        return Snippets(
            c_program(
                [
                    "int32_t bytes = 0;",
                    call(batch, argument, "&bytes"),
                    f'printf("%d\\n", (int)bytes);  /* prints {printed} */',
                ],
                "zulgenpx_batch.h",
            )
        )
    if family == "DCT4":
        n, form = 64, "%.1f" if element == "32f" else "%.4f"
        printed = form % dct4_value(n)
        c = [
            f"static {kind} x[{2 * n}], y[{2 * n}];",
            f"for (int n = 0; n < {2 * n}; ++n) x[n] = n % {n} + 1;",
            f"ZulgDCT4Plan_{element}* plan;",
            f"if (zulgDCT4InitAlloc_{element}(&plan, {n}) != StatusOk) return 1;",
            call(batch, "x", 1, n, "y", 1, n, "plan", 2, "NULL") + "  /* no buffer: both steps are 1 */",
            f'printf("{form}\\n", y[{n}]);  /* prints {printed} */',
            f"zulgDCT4Free_{element}(plan);",
        ]
        return Snippets(c_program(c, "zulgenpx_batch.h"))
    if family == "WHT":
        n = 16
        c = [
            f"{kind} x[{2 * n}];",
            f"for (int n = 0; n < {2 * n}; ++n) x[n] = n % {n} + 1;",
            call(batch, "x", 1, n, "x", 1, n, 4, "NoDivByAny", 2, "NULL") + "  /* order 4 needs no buffer */",
            f'printf("%.0f %.0f\\n", x[{n}], x[{n + 1}]);  /* prints {n * (n + 1) // 2} {-n // 2} */',
        ]
        return Snippets(c_program(c, "zulgenpx_batch.h"))
    n, form = 15, form_of(element)
    value, layout = ramp_bin(n, 1), batch.get("spectrum", {}).get("layout")
    size = half_spectrum_size(layout, n) if layout else n
    if "CToC" in family:
        if "Fwd" in family:
            c = [
                f"static {kind} x[{count * n}], X[{count * n}];",
                f"for (int n = 0; n < {count * n}; ++n) x[n].re = n % {n} + 1;",
                call(batch, "x", 1, n, "X", 1, n, n, "NoDivByAny", count),
                (
                    f'printf("{form} {form}\\n", X[{n + 1}].re, X[{n + 1}].im);  '
                    f"/* prints {shown(element, value.real)} {shown(element, value.imag)} */"
                ),
            ]
        else:
            c = [
                f"static {kind} X[{count * n}], x[{count * n}];",
                f"X[{n}].re = {3 * n};",
                f"X[{n + 1}].re = {n};",
                call(batch, "X", 1, n, "x", 1, n, n, "DivInvByN", count),
                f'printf("{form}\\n", x[{n + 1}].re);  /* prints {shown(element, 3 + math.cos(2 * math.pi / n))} */',
            ]
    elif "Fwd" in family:
        place = size + place_of(layout, n, 1, "re")
        c = [
            f"static {kind} x[{count * n}], X[{count * size}];",
            f"for (int n = 0; n < {count * n}; ++n) x[n] = n % {n} + 1;",
            call(batch, "x", 1, n, "X", 1, size, n, "NoDivByAny", count),
            (
                f'printf("{form} {form}\\n", X[{place}], X[{place + 1}]);  '
                f"/* prints {shown(element, value.real)} {shown(element, value.imag)} */"
            ),
        ]
    elif "Inv" in family:
        place = size + place_of(layout, n, 1, "re")
        c = [
            f"static {kind} X[{count * size}], x[{count * n}];",
            f"X[{size}] = {3 * n};",
            f"X[{place}] = {n};",
            call(batch, "X", 1, size, "x", 1, n, n, "DivInvByN", count),
            f'printf("{form}\\n", x[{n + 1}]);  /* prints {shown(element, 3 + 2 * math.cos(2 * math.pi / n))} */',
        ]
    else:
        c = [
            f"static {kind} x[{count * n}], h[{count * n}];",
            f"for (int n = 0; n < {count * n}; ++n) x[n] = n % {n} + 1;",
            call(batch, "x", 1, n, "h", 1, n, n, "NoDivByAny", count),
            f'printf("{form}\\n", h[{n + 1}]);  /* prints {shown(element, value.real - value.imag)} */',
        ]
    return Snippets(c_program(c, "zulgenpx_batch.h"))
