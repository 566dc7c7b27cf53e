# Runs a table of inputs that the tool has to refuse. Each row is run in a folder of its own, where an earlier output
# stands; afterwards the folder must hold what it held before, byte for byte, and nothing else.
import collections
import concurrent.futures
import os
import re
import tempfile

import tool

# `arguments` are words, in which {folder} is the folder of the run; "--output {kept}" names the earlier output.
# `says` is a regular expression for the message after the name of the program. `files` are more files of the folder.
Bad = collections.namedtuple("Bad", "arguments status says given files", defaults=(None, {}))
EARLIER = b"earlier output\n"


def filled_in(word, folder):
    if isinstance(word, bytes):
        return word
    return str(word).replace("{folder}", folder).replace("{kept}", os.path.join(folder, "kept.csv"))


def files_in(folder):
    found = {}
    for place, folders, names in os.walk(folder):
        for name in folders:
            found[os.path.join(place, name)] = "a folder"
        for name in names:
            path = os.path.join(place, name)
            found[path] = tool.content_of(path) if os.path.isfile(path) else "no file"
    return found


def fault(row):
    """What is wrong with the run of a row, or None."""
    with tempfile.TemporaryDirectory() as folder:
        for name, content in {"kept.csv": EARLIER, **row.files}.items():
            with open(os.path.join(folder, name), "wb") as file:
                file.write(content)
        before = files_in(folder)
        done = tool.run(*(filled_in(word, folder) for word in row.arguments), given=row.given, cwd=folder)
        try:
            message = done.stderr.decode()
        except UnicodeDecodeError:
            return f"a message that is no UTF-8: {done.stderr!r}"
        if done.returncode != row.status:
            return f"status {done.returncode} instead of {row.status}: {message}"
        if not tool.ONE_LINE.match(message):
            return f"not one line of printable characters: {message!r}"
        if len(message) > 1000:
            return f"{len(message)} letters of message"
        if not re.search(row.says, message.removeprefix("zulspectrum: ").replace(folder + "/", "")):
            return f"the message is not as {row.says!r}: {message}"
        if files_in(folder) != before:
            return f"other files than before: {sorted(files_in(folder))}"
        if done.stdout:
            return f"standard output: {done.stdout[:80]!r}"
    return None


def faults(rows):
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        return [f"{row.arguments!r}: {what}" for row, what in zip(rows, pool.map(fault, rows)) if what]


def expect_refusals(test, rows, least):
    """All rows of a table that has at least so many."""
    test.assertGreaterEqual(len(rows), least)
    found = faults(rows)
    if found:
        test.fail(f"{len(found)} of {len(rows)} bad inputs:\n" + "\n".join(found))
