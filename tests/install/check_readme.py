#!/usr/bin/env python3
"""The README's C++ example must be the program that the tests compile and run."""

import pathlib
import sys

root = pathlib.Path(sys.argv[1])
program = (root / "examples/cpp/quick_start.cpp").read_text()
readme = (root / "README.md").read_text()
if f"```cpp\n{program}```" not in readme:
    sys.exit("README.md: its C++ example differs from examples/cpp/quick_start.cpp")
