"""Writes the declarations of all routines for C#, Pascal and Basic, from docs/catalogue.json and the texts in heads/.

declarations.py CATALOGUE OUTPUT_FOLDER

Each language has one file for the library and one for the batch library. In a text of heads/, @routines@ on a line of
its own is where the declarations go. The same input gives the same bytes.
"""
import json
import pathlib
import sys

HERE = pathlib.Path(__file__).parent
WIDTH = 120


def is_plan(argument):
    return argument["type"].startswith("ZulgDCT4Plan")


def filled(start, parts, end, indent, continuation=""):
    """start + parts, joined by ", " + end, in lines of at most WIDTH; each line but the last ends in continuation."""
    lines, line = [], start
    for number, part in enumerate(parts):
        last = number == len(parts) - 1
        piece = part + (end if last else ",")
        space = "" if line.endswith("(") or not line.strip() else " "
        if len(line) + len(space) + len(piece) + len(continuation) > WIDTH:
            lines.append(line + continuation)
            line, space = indent, ""
        line += space + piece
    return "\n".join(lines + [line if parts else line + end]) + "\n"


class CSharp:
    """A routine with arrays has one declaration that takes arrays and one that takes addresses. A plan is an object
    that frees itself, or an address."""

    ELEMENTS = {"Zulg32f": "float", "Zulg64f": "double", "Zulg32fc": "Zulg32fc", "Zulg64fc": "Zulg64fc"}

    def argument(self, argument, arrays, handles, complex_type):
        name, kind, use = argument["name"], argument["type"], argument["use"]
        if use == "value":
            return ("ZulgFlag " if name == "flag" else {"int32_t": "int ", "int64_t": "long "}[kind]) + name
        if is_plan(argument):
            plan = kind.rstrip("*") if handles else "IntPtr"
            return f"{'out ' if kind.endswith('*') else ''}{plan} {name}"
        if kind == "int32_t":
            return f"out int {name}"
        if kind == "uint8_t" or not arrays:
            return f"IntPtr {name}"
        # Also what is only written is [In, Out]: a caller's elements between the results stay as they are.
        element = complex_type if complex_type and kind == "Zulg64fc" else self.ELEMENTS[kind]
        return f"{'[In]' if use == 'in' else '[In, Out]'} {element}[] {name}"

    def routine(self, export):
        returned = "ZulgStatus" if export["returns"] == "ZulgStatus" else "IntPtr"
        written, seen = [], set()
        for complex_type in (None, "System.Numerics.Complex"):
            for arrays in (True, False):
                for handles in (True, False):
                    arguments = [self.argument(argument, arrays, handles, complex_type)
                                 for argument in export["arguments"]]
                    if self.unsafe(export, handles) or tuple(arguments) in seen:
                        continue
                    seen.add(tuple(arguments))
                    text = "    [DllImport(File, CallingConvention = Convention, ExactSpelling = true)]\n" + filled(
                        f"    public static extern {returned} {export['name']}(", arguments, ");", " " * 8)
                    if complex_type:
                        text = f"#if ZULG_NUMERICS\n{text}#endif\n"
                    written.append(text)
        return "".join(written)

    @staticmethod
    def unsafe(export, handles):
        """A plan in a caller's block must not be freed, and the object of a plan frees itself."""
        return handles and (export["name"].startswith("zulgDCT4Init_") or export["name"].startswith("zulgDCT4Free_"))


class Pascal:
    def argument(self, argument):
        name, kind, use = argument["name"], argument["type"], argument["use"]
        if use == "value":
            return f"{name}: {({'int32_t': 'ZulgInt32', 'int64_t': 'Int64'})[kind]}"
        if kind.endswith("*"):
            return f"var {name}: P{kind.rstrip('*')}"
        if kind == "int32_t":
            return f"var {name}: ZulgInt32"
        return f"{name}: {'PByte' if kind == 'uint8_t' else 'P' + kind}"

    def routine(self, export):
        returned = "ZulgStatus" if export["returns"] == "ZulgStatus" else "PLibVersion"
        arguments = [self.argument(argument) for argument in export["arguments"]]
        arguments = [argument + (";" if argument != arguments[-1] else "") for argument in arguments]
        head = filled(f"function {export['name']}{'(' if arguments else ''}", arguments,
                      f"{')' if arguments else ''}: {returned};", "  ").replace(";,", ";")
        return (f"{head}  {{$IFDEF WIN32}}stdcall{{$ELSE}}cdecl{{$ENDIF}}; "
                f"external ZulgFile name '{export['name']}';\n")


class Basic:
    """`pointer` is the type of an address, LongPtr or Long. What may be null, and what holds a plan, is passed as an
    address."""

    ELEMENTS = {"Zulg32f": "Single", "Zulg64f": "Double", "Zulg32fc": "Zulg32fc", "Zulg64fc": "Zulg64fc"}

    def argument(self, argument, pointer):
        name, kind, use = argument["name"], argument["type"], argument["use"]
        if use == "value":
            return f"ByVal {name} As {({'int32_t': 'Long', 'int64_t': 'LongLong'})[kind]}"
        if kind.endswith("*"):
            return f"ByRef {name} As {pointer}"
        if kind == "int32_t":
            return f"ByRef {name} As Long"
        if is_plan(argument) or argument.get("null") or kind == "uint8_t":
            return f"ByVal {name} As {pointer}"
        return f"ByRef {name} As {self.ELEMENTS[kind]}"

    def one(self, export, safe, pointer, file):
        returned = "Long" if export["returns"] == "ZulgStatus" else pointer
        arguments = [self.argument(argument, pointer) for argument in export["arguments"]]
        return filled(f"Public Declare {safe}Function {export['name']} Lib \"{file}\" (", arguments,
                      f") As {returned}", " " * 4, " _")

    def routines(self, exports):
        """Each routine twice: as Basic for applications declares it since it knows 64 bits, and as before."""
        now = "".join(self.one(export, "PtrSafe ", "LongPtr", "zulgenpx-7.0.dll") for export in exports)
        before = "".join(self.one(export, "", "Long", "zulgenpx-7.0.dll") for export in exports)
        return f"#If VBA7 Then\n{now}#Else\n{before}#End If\n"

    def batches(self, batches):
        """Only 64-bit Windows has the batch library."""
        return "".join(self.one(batch, "PtrSafe ", "LongPtr", "zulgenpx-batch-7.0.dll") for batch in batches)


def with_routines(head, routines):
    before, place, after = (HERE / "heads" / head).read_text(encoding="ascii").partition("@routines@\n")
    if not place:
        raise ValueError(f"heads/{head} has no line @routines@")
    return before + routines + after


def declarations(catalogue):
    """File name -> text."""
    exports, batches = catalogue["exports"], catalogue["batches"]
    csharp, pascal, basic = CSharp(), Pascal(), Basic()
    made = {
        "Zulgenpx.cs": "".join(map(csharp.routine, exports)),
        "ZulgenpxBatch.cs": "".join(map(csharp.routine, batches)),
        "zulgenpx.pas": "".join(map(pascal.routine, exports)),
        "zulgenpx_batch.pas": "".join(map(pascal.routine, batches)),
        "zulgenpx.bas": basic.routines(exports),
        "zulgenpx_batch.bas": basic.batches(batches),
    }
    return {name: with_routines(name, text) for name, text in made.items()}


def main():
    source, output = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    made = declarations(json.loads(source.read_text(encoding="ascii")))
    output.mkdir(parents=True, exist_ok=True)
    for name, text in made.items():
        # Basic reads a module only with the line ends of Windows.
        end = "\r\n" if name.endswith(".bas") else "\n"
        (output / name).write_bytes(text.replace("\n", end).encode("ascii"))


if __name__ == "__main__":
    try:
        main()
    except (OSError, ValueError, KeyError) as error:
        sys.exit(f"declarations.py: {error}")
    except IndexError:
        sys.exit("usage: declarations.py CATALOGUE OUTPUT_FOLDER")
