"""What the machine-code net counts on 64-bit Windows: what it counts on x86-64."""
import importlib.util
import pathlib

path = pathlib.Path(__file__).resolve().parents[1] / "x86_64" / "machine.py"
spec = importlib.util.spec_from_file_location("machine_of_x86_64", path)
of_x86_64 = importlib.util.module_from_spec(spec)
spec.loader.exec_module(of_x86_64)
globals().update({name: value for name, value in vars(of_x86_64).items() if name.isupper()})
MAY_SHARE_AN_END = True  # where a kernel saves vector registers, the compiler puts the end of all before them
