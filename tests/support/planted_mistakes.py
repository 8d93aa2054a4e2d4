#!/usr/bin/env python3
"""Usage: planted_mistakes.py TABLE COMMAND…     COMMAND runs the language server

Plants each mistake of the table in its program, and counts those that are told in the right line. The programs as they are
must have no warnings."""

import sys

from language_client import Client

REQUIRED = 76


def entries(path):
    """(program, old, new, text of the line where it is told or "")"""
    program = pending = ""
    for line in open(path, encoding="utf-8"):
        line = line.rstrip("\n")
        if line.startswith("== "):
            program = line[3:]
        elif program and line:
            pending += ("\n" if pending else "") + line
            old, arrow, rest = pending.partition(" ==> ")
            new, _, told = rest.partition(" @@ ")
            if arrow and new.count("\n") == old.count("\n"):
                yield program, old, new, told
                pending = ""
    assert not pending, pending


def line_of(text, at):
    return text.count("\n", 0, at)


def main():
    client = Client(sys.argv[2:])
    client.start()
    texts, missed, count = {}, [], 0
    for program, old, new, told in entries(sys.argv[1]):
        if program not in texts:
            texts[program] = open(program, encoding="utf-8").read()
            clean = client.open("file:///clean.lsp", texts[program])
            client.close("file:///clean.lsp")
            warnings = [finding for finding in clean if finding["severity"] <= 2]
            assert not warnings, f"{program} as it is: {warnings}"
        text = texts[program]
        at = text.find(old)
        assert at >= 0, f"{program} has no {old!r}"
        count += 1
        spoilt = text[:at] + new + text[at + len(old):]
        same = next((i for i, (a, b) in enumerate(zip(old, new)) if a != b), min(len(old), len(new)))
        right = line_of(text, text.find(told)) if told else line_of(text, at + same)
        findings = client.open("file:///spoilt.lsp", spoilt)
        client.close("file:///spoilt.lsp")
        warnings = [finding for finding in findings if finding["severity"] <= 2]
        lines = [finding["range"]["start"]["line"] for finding in warnings]
        if right not in lines:
            missed.append(f"{program}:{right + 1}: {new!r} is told as {[(f['range']['start']['line'] + 1, f['message']) for f in warnings]}")
    client.stop()
    print("\n".join(missed))
    print(f"{count - len(missed)} of {count} mistakes are told in the right line")
    sys.exit(0 if count >= 80 and count - len(missed) >= REQUIRED else 1)


if __name__ == "__main__":
    main()
