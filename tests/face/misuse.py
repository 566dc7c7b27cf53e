"""What the C++ headers refuse to compile: each wrong line must fail with the message that names the fault, and the
right lines beside them must compile, together, without a warning.

misuse.py --source TREE --folder FOLDER [--batch] COMPILER ...
"""
import argparse
import os
import re
import subprocess
import sys

HEAD = """#include <complex>
#include <list>
#include <vector>
#include "{header}"
using Complex = std::complex<double>;
using namespace zulgenpx;
std::array<Complex, 15> x, y;
std::array<std::complex<float>, 15> singles;
std::array<Complex, 14> shorter;
std::array<double, 15> reals;
std::array<double, 512> many;
std::array<double, 16> few;
std::array<int, 15> whole;
const std::array<Complex, 15> fixed{{}};
std::vector<Complex> any(15);
std::vector<double> bins(16), buffer(512);
dct4_plan<double> plan;
std::vector<float> floats(15);
"""

# What is wrong, what is right in its place, what the compiler says of the first.
MISUSE = [
    ("dft<15>(x, shorter);", "dft<15>(x, y);", "the destination has not as many elements"),
    ("dft<15>(shorter, y);", "dft<14>(shorter, shorter);", "the source has not as many elements"),
    ("dft(shorter, y);", "dft(any, y);", "the destination has not as many elements"),
    ("dft<65>(any, any);", "dft<64>(any, any);", "lengths are 2 to 64"),
    ("dft<1>(any, any);", "dft<2>(any, any);", "lengths are 2 to 64"),
    ("dft<15>(x, fixed);", "dft<15>(fixed, x);", "the destination is const"),
    ("dft<15>(x, std::vector<Complex>(15));", "dft<15>(std::vector<Complex>(15), x);", "the array is a temporary"),
    ("dft<15>(x, singles);", "dft<15>(singles, singles);", "must both be single or both be double"),
    ("dft<15>(reals, y);", "hartley<15>(reals, reals);", "takes complex elements; those of the source are real"),
    ("dft<15>(x, reals);", "dft<15>(x, y);", "gives complex elements; those of the destination are real"),
    ("hartley<15>(x, reals);", "hartley(reals, reals);", "takes real elements; those of the source are complex"),
    ("hartley<15>(reals, x);", "hartley(reals, reals);", "gives real elements; those of the destination are complex"),
    ("hartley<15>(whole, whole);", "hartley<15>(floats, floats);", "elements are float, double, std::complex"),
    ("real_dft<15>(reals, y);", "real_dft<15>(reals, bins);", "the destination has not as many elements"),
    ("real_dft<layout::pack>(reals, any);", "real_dft<layout::pack>(reals, reals);", "gives real elements"),
    ("auto z = dft(any);", "auto z = dft<15>(any);", "the length of the result is not known"),
    ("auto z = inverse_real_dft(many);", "auto z = inverse_real_dft<14>(few);",
     "the length of the result is not known"),
    ("dft<15>(x);", "static_cast<void>(dft<15>(x));", "nodiscard"),
    ("wht<5>(few, few);", "wht<4>(few, few);", "the source has not as many elements"),
    ("wht(reals, reals);", "wht(few, few);", "powers of two from 2 to 8192"),
    ("wht<14>(buffer, buffer);", "wht<9>(buffer, buffer, many);", "are 1 to 13"),
    ("wht<9>(many, many);", "wht<9>(many, many, buffer);", "need a buffer"),
    ("wht(many, many);", "wht(many, many, buffer);", "need a buffer"),
    ("wht<9>(many, many, few);", "wht<9>(many, many, buffer);", "fewer than wht_buffer_size(order) elements"),
    ("wht<9>(many, many, floats);", "wht<9>(many, many, buffer);", "the elements of the buffer are those"),
    ("dft<15>(x, y, scale(3));", "dft<15>(x, y, scale::none);", "private"),
    ("dct4_plan<int> p(8);", "dct4_plan<float> p(8);", "a plan of the DCT-IV is of float or double"),
    ("dct4_plan<double> p(plan);", "dct4_plan<double> p(std::move(plan));", "deleted|implicitly"),
    ("plan(floats, floats);", "plan(bins, bins);", "the elements are not of the type of the plan"),
    ("plan(bins);", "static_cast<void>(plan(few));", "the length of the result is not known"),
    ("plan(few);", "static_cast<void>(plan(few));", "nodiscard"),
    ("dct4_plan<double>::bytes(8);", "static_cast<void>(dct4_plan<double>::bytes(8));", "nodiscard"),
    ("std::list<Complex> l(15); dft<15>(l, x);", "dft<15>(any, x);", "constraints not satisfied|no matching function"),
]
OF_BATCHES = [
    ("batch::dft(rows(any, 5), rows(fixed, 5));", "batch::dft(rows(fixed, 5), rows(any, 5));",
     "the destination is const"),
    ("batch::dft(rows(reals, 5), rows(any, 5));", "batch::hartley(rows(reals, 5), rows(reals, 5));",
     "takes complex elements"),
    ("batch::single::dft(rows(any, 5), rows(any, 5));", "batch::single::dft(rows(singles, 5), rows(singles, 5));",
     "only elements of float can be computed in single"),
    ("batch::dft(any, any);", "batch::dft(rows(any, 5), rows(any, 5));",
     "constraints not satisfied|no matching function"),
    ("rows(any, 5);", "static_cast<void>(rows(any, 5));", "nodiscard"),
    ("auto r = rows(std::vector<double>(9), 3);", "auto r = rows(reals, 3);", "the array is a temporary"),
    ("batch::dct4(plan, rows(floats, 5), rows(floats, 5));", "batch::dct4(plan, rows(reals, 5), rows(reals, 5));",
     "the elements are not of the type of the plan"),
]


def compiled(compiler, source, file, text):
    """Whether the text compiles, and what the compiler says."""
    with open(file, "w", encoding="utf-8") as output:
        output.write(text)
    command = [compiler, "-std=c++20", "-fsyntax-only", "-Wall", "-Wextra", "-Wconversion", "-Wshadow", "-Wpedantic",
               "-Wno-unused-variable", "-Wno-unused-but-set-variable", "-Werror",
               "-I", os.path.join(source, "include"), file]
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False,
                            env=dict(os.environ, LC_ALL="C"))
    return result.returncode == 0, result.stdout


def wrong_function(number, line):
    """A function whose place, in what the compiler says, is `wrong_<number>` and no line of the file."""
    return f'#line 1 "wrong_{number}"\nvoid wrong{number}() {{ {line} }}\n'


def errors_of(said):
    """The errors of each wrong line: an error is that of the place which was named last."""
    errors, place = {}, None
    for line in said.splitlines():
        named = re.match(r"wrong_(\d+):", line)
        place = int(named[1]) if named else place
        if " error: " in line:
            errors.setdefault(place, []).append(line)
            place = None
    return errors


def says(said, message):
    return any(each in said for each in message.split("|"))


def failures_of(compiler, args):
    failures = 0
    kinds = [("zulgenpx.hpp", MISUSE)] + [("zulgenpx_batch.hpp", OF_BATCHES)] * args.batch
    for header, rows in kinds:
        head = HEAD.format(header=header)
        file = os.path.join(args.folder, "misuse_" + os.path.basename(compiler) + ".cpp")
        functions = [f"void right{number}() {{ {right} }}\n" for number, (_, right, _) in enumerate(rows)]
        is_right, said = compiled(compiler, args.source, file, head + "".join(functions))
        if not is_right:
            print(f"{compiler}: what is right does not compile:\n{said}")
            failures += 1
        # All wrong lines at once. The compiler says the same thing about two of them only once, or stops at one: those
        # that are not refused there are compiled by themselves.
        functions = [wrong_function(number, wrong) for number, (wrong, _, _) in enumerate(rows)]
        errors = errors_of(compiled(compiler, args.source, file, head + "".join(functions))[1])
        for number, (wrong, _, message) in enumerate(rows):
            if says("\n".join(errors.get(number, [])), message):
                continue
            is_right, said = compiled(compiler, args.source, file, head + f"void wrong() {{ {wrong} }}\n")
            if is_right or not says(said, message):
                print(f"{compiler}: {wrong} " + ("compiles" if is_right else f"does not say '{message}':\n{said}"))
                failures += 1
    return failures


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--source", required=True)
    parser.add_argument("--folder", required=True)
    parser.add_argument("--batch", action="store_true")
    parser.add_argument("compilers", nargs="+")
    args = parser.parse_args()
    failures = sum(failures_of(compiler, args) for compiler in args.compilers)
    lines = len(MISUSE) + len(OF_BATCHES) * args.batch
    print(f"{lines} wrong lines, compilers: {' '.join(args.compilers)}: {failures} failures")
    return 1 if failures else 0


sys.exit(main())
