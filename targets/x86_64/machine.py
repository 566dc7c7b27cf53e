"""What the machine-code net counts on x86-64."""
import re

SUMS = re.compile(r"v?(add|sub)s[sd]$")
PRODUCTS = re.compile(r"v?muls[sd]$")
# Complex kernels have the two parts of a number in one register. Arithmetic is in double, whatever the elements are.
PACKED_FAMILIES = {"complex"}
SECOND_LEVEL_KERNELS = 252  # the complex ones
PACKED_SUMS = re.compile(r"v?(add|sub)pd$")
PACKED_PRODUCTS = re.compile(r"v?mulpd$")
NEGATIONS = {"xorps", "xorpd"}
# Arithmetic that no kernel may hold: packed, or of the x87 unit, or anything but sums, differences and products.
FOREIGN = re.compile(
    r"f(add|sub|mul|i?div|sqrt|abs|i(add|sub|mul)|chs|sin|cos)|v?(add|sub|mul|div|sqrt|hadd|addsub)p[sd]"
    r"|v?(div|sqrt)s[sd]|vf?n?m(add|sub)|cmp[a-z]*s[sd]|u?comis[sd]|fu?comi?p?")
# Reading an operand of one width from memory.
READS_SINGLE = re.compile(r"v?cvtss2sd$")
READS_DOUBLE = re.compile(r"v?(?:mov|mul)sd$")
HAS_WIDE_REGISTERS = False
