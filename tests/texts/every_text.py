"""Compiles every text for every kind of number of texts_test.h and lane_texts_test.h; nothing is linked or run.

every_text.py SOURCE_FOLDER COMPILER
"""
import pathlib
import re
import subprocess
import sys

TEXTS_AT_ONCE = 24


def main():
    source, compiler = pathlib.Path(sys.argv[1]), sys.argv[2]
    texts = sorted([*source.glob("kernels/*/*.h"), *source.glob("wht/bodies/*.h"), *source.glob("dct4/bodies/*.h")])
    failures = 0
    for first in range(0, len(texts), TEXTS_AT_ONCE):
        program = '#include "tests/texts/lane_texts_test.h"\n'
        for text in texts[first:first + TEXTS_AT_ONCE]:
            graph = re.search(r"^struct (\w+<\d+>) \{$", text.read_text(encoding="ascii"), re.MULTILINE)[1]
            program += f'#include "{text.relative_to(source)}"\n'
            lanes = re.match(r"(\w+)(?:Pairs|Lines)(<\d+>)", graph)
            if lanes:
                folder = re.sub(r"_(pairs|lines)$", "", text.parent.name)
                program += f'#include "kernels/{folder}/{text.name}"\n'
                program += (f"template test::LaneTextResults test::runLaneText<zulg::{graph}, "
                            f"zulg::{lanes[1]}Graph{lanes[2]}>();\n")
            else:
                program += f"template test::TextResults test::runText<zulg::{graph}>();\n"
        done = subprocess.run([compiler, "-std=c++20", "-fsyntax-only", "-Wno-psabi", f"-I{source}", "-xc++", "-"],
                              input=program, capture_output=True, text=True)
        if done.returncode != 0:
            failures += 1
            print(done.stderr[:2000])
    print(f"{len(texts)} texts compiled, {failures} groups failed")
    return 1 if failures or len(texts) < 656 else 0


sys.exit(main())
