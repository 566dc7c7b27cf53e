"""What runs the programs of a test that the machine itself cannot run. Such a test is given it before all else, word by
word: --run PROGRAM --run ARGUMENT."""


def launcher_and_rest(words):
    """The words of that command, none where programs run by themselves, and the words after them."""
    launcher = []
    while words[:1] == ["--run"]:
        launcher, words = launcher + words[1:2], words[2:]
    return launcher, words
