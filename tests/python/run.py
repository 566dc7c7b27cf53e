"""Runs the tests of the Python package: run.py [MODULE[.CLASS[.TEST]] ...]; without names, all of them.

ZULGENPX_LIBRARY_DIR names the folder of the built libraries, ZULGENPX_TEST_FOLDER one for files.
"""
import os
import sys
import unittest

sys.dont_write_bytecode = True  # the tree stays clean
FOLDER = os.path.dirname(os.path.abspath(__file__))


def main():
    sys.path.insert(0, FOLDER)
    loader = unittest.defaultTestLoader
    tests = loader.loadTestsFromNames(sys.argv[1:]) if sys.argv[1:] else loader.discover(FOLDER, "*_test.py")
    result = unittest.TextTestRunner(verbosity=1).run(tests)
    return 0 if result.wasSuccessful() and result.testsRun > 0 else 1


sys.exit(main())
