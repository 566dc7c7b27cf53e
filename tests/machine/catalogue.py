"""Every export of the library as data, as docs/catalogue.json has it, for tests and benchmarks."""
import json
import pathlib

PATH = pathlib.Path(__file__).resolve().parents[2] / "docs" / "catalogue.json"


def exports():
    """Name, family, length or order, element, arguments and counts of each, in the ASCII order of the names."""
    with open(PATH, encoding="ascii") as file:
        return json.load(file)["exports"]


def kernels():
    """The exports of a fixed length or order."""
    return [export for export in exports() if export["family"] != "version"
            and (export["length"] is not None or export["order"] is not None)]


def dispatchers():
    """The exports that transform arrays whose length or order is an argument."""
    return [export for export in exports() if export["family"] != "version"
            and export["length"] is None and export["order"] is None
            and any(argument["name"] == "flag" for argument in export["arguments"])]


def array(export, argument):
    return next(each for each in export["arguments"] if each["name"] == argument)
