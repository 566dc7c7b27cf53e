"""What the machine-code net counts on x86-64."""
import re

SUMS = re.compile(r"v?(add|sub)s[sd]$")
PRODUCTS = re.compile(r"v?muls[sd]$")
# Kernels have several numbers to a register. Arithmetic is in double, whatever the elements are.
PACKED_FAMILIES = {"complex", "real_forward", "real_inverse", "hartley", "wht"}
SECOND_LEVEL_KERNELS = 2 * (9 * 63 + 13)  # all of these
LANES = 2, 4  # of the widest register, at each level
PACKED_SUMS = re.compile(r"v?(add|sub)pd$")
PACKED_PRODUCTS = re.compile(r"v?mulpd$")
NEGATIONS = {"xorps", "xorpd"}
# Arithmetic that no kernel may hold: packed, or of the x87 unit, or anything but sums, differences and products.
FOREIGN = re.compile(
    r"f(add|sub|mul|i?div|sqrt|abs|i(add|sub|mul)|chs|sin|cos)|v?(add|sub|mul|div|sqrt|hadd|addsub)p[sd]"
    r"|v?(div|sqrt)s[sd]|vf?n?m(add|sub)|cmp[a-z]*s[sd]|u?comis[sd]|fu?comi?p?")
STORES_TWO = False  # inverse real kernels double their bins by a constant or by a sum
HAS_WIDE_REGISTERS = False
MAY_SHARE_AN_END = False  # with the refusals before it
