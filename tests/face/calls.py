"""What a call of the C++ headers becomes: the same instructions as the call in C, and one undefined symbol for each
routine that is called, without optimization too. So a program is linked with nothing else of a static library.

calls.py --source TREE --folder FOLDER --objdump OBJDUMP --nm NM COMPILER ...
"""
import argparse
import os
import re
import subprocess
import sys

# A call in C++, the same in C, the arguments of the function around both.
CALLS = [
    ("zulgenpx::dft<15>(x, y)", "zulgDFTFwd_CToC_15_64fc(in(x), out(y), DivInvByN)", "Complexes<15>"),
    ("zulgenpx::dft(x, y)", "zulgDFTFwd_CToC_16_64fc(in(x), out(y), DivInvByN)", "Complexes<16>"),
    ("zulgenpx::inverse_dft<64>(x, y, zulgenpx::scale::none)",
     "zulgDFTInv_CToC_64_64fc(in(x), out(y), NoDivByAny)", "Complexes<64>"),
    ("zulgenpx::hartley<8>(x, y)", "zulgHartley_8_32f(x.data(), y.data(), NoDivByAny)", "Reals<8>"),
    ("zulgenpx::real_dft<8, zulgenpx::layout::perm>(x, x)",
     "zulgDFTFwd_RToPerm_8_32f(x.data(), x.data(), DivInvByN)", "Reals<8>"),
    ("zulgenpx::wht<4>(x, y)", "zulgWHT_4_32f(x.data(), y.data(), NoDivByAny, nullptr)", "Reals<16>"),
    ("zulgenpx::dft<5>(x, y), zulgenpx::dft<5>(y, x)",
     "zulgDFTFwd_CToC_5_64fc(in(x), out(y), DivInvByN), zulgDFTFwd_CToC_5_64fc(in(y), out(x), DivInvByN)",
     "Complexes<5>"),
]
HEAD = """#include "zulgenpx.hpp"
template <std::size_t N> using Complexes = std::span<std::complex<double>, N>;
template <std::size_t N> using Reals = std::span<float, N>;
template <class Span> const Zulg64fc* in(Span x) noexcept { return reinterpret_cast<const Zulg64fc*>(x.data()); }
template <class Span> Zulg64fc* out(Span x) noexcept { return reinterpret_cast<Zulg64fc*>(x.data()); }
"""


def object_of(args, compiler, level, calls):
    """Compiles one function for each call. All are noexcept, as those who count on the headers may write."""
    name = os.path.join(args.folder, f"calls_{os.path.basename(compiler)}{level}")
    with open(name + ".cpp", "w", encoding="utf-8") as file:
        file.write(HEAD)
        for number, (call, arguments) in enumerate(calls):
            file.write(f'extern "C" void call{number}({arguments} x, {arguments} y) {{ {call}; '
                       "static_cast<void>(y); }\n")
    subprocess.run([compiler, "-std=c++20", level, "-I", os.path.join(args.source, "include"), "-c", name + ".cpp",
                    "-o", name + ".o"], check=True)
    return name + ".o"


def functions_of(args, file):
    """Name: the instructions of the function, with the symbols that they refer to and without addresses."""
    text = subprocess.run([args.objdump, "-dr", "--no-show-raw-insn", file], check=True, stdout=subprocess.PIPE,
                          text=True).stdout
    functions = {}
    for name, body in re.findall(r"^[0-9a-f]+ <_?(call[0-9]+)[^>]*>:\n((?:.+\n)*)", text, re.MULTILINE):
        lines = [re.sub(r"^\s*[0-9a-f]+:\s*|\s*<.*>|\b[0-9a-f]+\s*$", "", line).strip() for line in body.splitlines()]
        functions[name] = [line for line in lines if not re.match(r"(data16 |cs )*(nop|xchg\s+%ax,%ax)", line)]
    return functions


def undefined_in(args, file):
    text = subprocess.run([args.nm, "-u", file], check=True, stdout=subprocess.PIPE, text=True).stdout
    return set(re.findall(r"zulg[A-Z][A-Za-z0-9_]*", text))


def failures_of(args, compiler):
    failures = 0
    face = functions_of(args, object_of(args, compiler, "-O2", [(call, spans) for call, _, spans in CALLS]))
    plain = functions_of(args, object_of(args, compiler, "-O2", [(call, spans) for _, call, spans in CALLS]))
    for number, (call, _, _) in enumerate(CALLS):
        name = f"call{number}"
        if not plain[name] or face[name] != plain[name]:
            print(f"{compiler}: {call} is\n  " + "\n  ".join(face[name]) + "\nand in C\n  " + "\n  ".join(plain[name]))
            failures += 1
    due = set(re.findall(r"zulg[A-Z][A-Za-z0-9_]*(?=\()", " ".join(call for _, call, _ in CALLS)))
    for level in ("-O0", "-O2"):
        found = undefined_in(args, object_of(args, compiler, level, [(call, spans) for call, _, spans in CALLS]))
        if found != due:
            print(f"{compiler} {level}: undefined are {sorted(found)}, due are {sorted(due)}")
            failures += 1
    return failures


def main():
    parser = argparse.ArgumentParser()
    for name in ("source", "folder", "objdump", "nm"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("compilers", nargs="+")
    args = parser.parse_args()
    failures = sum(failures_of(args, compiler) for compiler in args.compilers)
    print(f"{len(CALLS)} calls, compilers: {' '.join(args.compilers)}: {failures} failures")
    return 1 if failures else 0


sys.exit(main())
