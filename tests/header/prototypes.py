"""The routines that public headers declare, for tests."""
import re


def code_of(text):
    """The text of a header without comments."""
    return re.sub(r"/\*.*?\*/", "", text, flags=re.S)


def prototypes(text):
    """Triples of what is returned, name and arguments, as they are written but in one line each."""
    found = re.findall(r"^((?:const )?\w+\*?) ZULG_CALL (zul\w+)\(([^;]*)\);", code_of(text), re.M)
    return [(returned, name, " ".join(arguments.split())) for returned, name, arguments in found]
