"""Reads the tables of tests/expected. A table begins with comment lines, the last of which names the columns."""


def expected_rows(path):
    """The rows as dictionaries: column -> text."""
    columns, rows = [], []
    with open(path, encoding="ascii") as file:
        for line in file:
            cells = [cell.strip() for cell in line.removeprefix("#").split("|")]
            if line.startswith("#"):
                columns = cells
            elif len(cells) == len(columns):
                rows.append(dict(zip(columns, cells)))
            else:
                raise ValueError(f"{path}, row: {line}")
    return rows
