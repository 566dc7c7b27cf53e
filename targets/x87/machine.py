"""What the machine-code net counts on the x87 unit."""
import re

SUMS = re.compile(r"f(add|sub)r?p?[sl]?$")
PRODUCTS = re.compile(r"fmulp?[sl]?$")
PACKED_FAMILIES = set()
SECOND_LEVEL_KERNELS = 0
LANES = 1,
NEGATIONS = {"fchs"}
# Arithmetic that no kernel may hold: anything else of this unit, and anything of a vector unit.
FOREIGN = re.compile(
    r"f(i?div|sqrt|abs|i(add|sub|mul)|chs|sin|cos)|v?(add|sub|mul|div|sqrt|hadd|addsub)[ps][sd]"
    r"|vf?n?m(add|sub)|cmp[a-z]*[ps][sd]|u?comis[sd]|fu?comi?p?")
STORES_TWO = True  # the 2 of inverse real kernels, in the width of their elements
# Reading an operand of one width from memory.
READS_SINGLE = re.compile(r"f(?:ld|mul)s$")
READS_DOUBLE = re.compile(r"f(?:ld|mul)l$")
# Registers are wider than a double: a spill at another place changes results.
HAS_WIDE_REGISTERS = True
MAY_SHARE_AN_END = False  # with the refusals before it
