#!/usr/bin/env python3
"""The README's C++ examples must be the programs that the tests compile and run."""

import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
shown = re.findall(r"^```cpp\n(.*?)^```$", (root / "README.md").read_text(), re.MULTILINE | re.DOTALL)
programs = [(root / "examples/cpp" / name).read_text() for name in ("quick_start.cpp", "host.cpp")]
if shown != programs:
    sys.exit("README.md: its C++ examples differ from the programs in examples/cpp")
