#!/usr/bin/env python3
"""Every example in a public header must be a line of the tests beside this script.

An example is what stands three or more blanks behind the "//" of a header's comment. A statement must
occur in a test. Where a comment behind it, or on the lines below it, gives results, these must be
expected there, in these words:

    f(x);  // VALUE           EXPECT_EQ(f(x), VALUE)
    f(x);  // y is VALUE      EXPECT_EQ(y, VALUE)
    f(x);  // y holds 1, 2    EXPECT_EQ(listed(y), "1, 2")

Several of them are parted by "; ". What follows a result, and any other comment, is for the reader alone.
Lines that are no statements are those of a file that the tests make, or tables of texts in quotes."""

import pathlib
import re
import sys

TEXT = r'u?"(?:[^"\\]|\\.)*"'
VALUE = rf"(?P<value>{TEXT}|-?\d+(?:\.\d+)?|true|false|kw::\w+)(?=$|[:;, ])"
RESULT = re.compile(VALUE)
CHANGE = re.compile(rf"(?P<name>\w+) is {VALUE}")
LISTED = re.compile(r"(?P<name>\w+) holds (?P<values>-?\w+(?:, -?\w+)*)(?=$|[:;]|, \w+ )")
STATEMENT_ENDS = (";", "{", "}")


def squeezed(code):
    """Without blanks, those in texts aside."""
    pieces = re.split(rf'(R"\((?:.|\n)*?\)"|{TEXT})', code)
    return "".join(piece if i % 2 else re.sub(r"\s+", "", piece) for i, piece in enumerate(pieces))


def blocks(header):
    """The examples of a header: lists of (line number, line)."""
    block = []
    for number, line in enumerate(header.read_text().splitlines() + [""], 1):
        example = re.fullmatch(r"\s*//   +(\S.*)", line)
        if example:
            block.append((number, example[1].rstrip()))
        elif block:
            yield block
            block = []


def parted(line):
    """A line's code and its comment."""
    code, _, note = line.partition("//")
    return code.rstrip(), note.strip()


def statements(block):
    """(line number, code, comments behind it, comments below it) of each statement."""
    found, code = [], ""
    for number, line in block:
        part, note = parted(line)
        if not part and found:
            found[-1][3].extend(note.split("; "))
            continue
        code += part + " "
        if part.endswith(STATEMENT_ENDS):
            found.append([number, code.strip(), note.split("; "), []])
            code = ""
    return found


def wanted_of_statement(code, behind, below):
    """What the tests must hold, squeezed."""
    wanted = []
    for clause in behind + below:
        if change := CHANGE.match(clause):
            wanted.append(f"EXPECT_EQ({change['name']},{change['value']})")
        elif listed := LISTED.match(clause):
            wanted.append(f"EXPECT_EQ(listed({listed['name']}),\"{listed['values']}\")")
    call = squeezed(code)
    result = RESULT.match(behind[0])
    wanted.append(f"EXPECT_EQ({call.removesuffix(';')},{result['value']})" if result else call)
    return wanted


def wanted_of_line(line):
    """What the tests must hold of a line that is no statement."""
    return [f'R"({text})"' for text in re.findall(r'"([^"]*)"', line)] or [line]


def complaints(header, tests):
    code, lines = squeezed(tests), " ".join(tests.split())
    for block in blocks(header):
        if any(parted(line)[0].endswith(STATEMENT_ENDS) for _, line in block):
            all_wanted = [(n, wanted_of_statement(*rest), code) for n, *rest in statements(block)]
        else:
            all_wanted = [(n, wanted_of_line(line), lines) for n, line in block]
        for number, wanted, held in all_wanted:
            yield from (f"{header.name}:{number}: no test has {w}" for w in wanted if w not in held)


def main(headers, tests):
    text = "\n".join(path.read_text() for path in sorted(pathlib.Path(tests).glob("*_*.[ch]*")))
    found = [c for path in sorted(pathlib.Path(headers).glob("*.h")) for c in complaints(path, text)]
    if found:
        sys.exit("\n".join(found))


main(*sys.argv[1:])
