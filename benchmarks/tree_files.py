"""The files of the tree that the scripts of this folder read and write, by their paths within it."""
import os

TREE = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def read(name):
    with open(os.path.join(TREE, name), encoding="utf-8") as file:
        return file.read()


def write(name, text):
    with open(os.path.join(TREE, name), "w", encoding="utf-8") as file:
        file.write(text)


def has_prime_from_11(n):
    """What the tables of errors tell apart."""
    return any(n % p == 0 for p in range(11, n + 1) if all(p % q for q in range(2, p)))
