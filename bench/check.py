#!/usr/bin/env python3
"""Usage: check.py COMMAND…     COMMAND runs the language server; see check.sh"""

import pathlib
import re
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "tests/support"))
from language_client import Client

URI = "file:///bench.lsp"
RUNS = 15


def program(lines):
    """The examples one after the other, again and again, each time with functions of other names."""
    texts = [path.read_text(encoding="utf-8") for path in sorted(pathlib.Path("examples").glob("*.lsp"))]
    whole, copy = "", 0
    while whole.count("\n") < lines:
        text = texts[copy % len(texts)]
        names = "|".join(map(re.escape, re.findall(r"\(defun (\S+)", text)))
        whole += re.sub(rf"(?<=[(' ])({names})(?=[ )])", rf"\1-{copy}", text) if names else text
        copy += 1
    return "\n".join(whole.split("\n")[:lines]) + "\n"


def measure(key, work):
    times = []
    for run in range(RUNS + 1):
        begun = time.perf_counter()
        work(run)
        times.append((time.perf_counter() - begun) * 1000)
    times = sorted(times[1:])
    print(f"{key}  min {times[0]:.1f}  med {times[len(times) // 2]:.1f} ms  n={RUNS}")


def main():
    client = Client(sys.argv[1:])
    client.start()
    version = 1

    def change(_):
        nonlocal version
        version += 1
        client.notify("textDocument/didChange", textDocument={"uri": URI, "version": version},
                      contentChanges=[{"range": {"start": {"line": 0, "character": 0}, "end": {"line": 0, "character": 0}},
                                       "text": ";"}])
        client.wait_findings(URI, version)

    client.open(URI, program(10000))
    measure("check.10000_lines", change)
    client.close(URI)
    version = 1
    client.open(URI, program(1000))
    measure("editor.findings_after_a_letter", change)
    place = {"textDocument": {"uri": URI}, "position": {"line": 20, "character": 3}}
    measure("editor.completion", lambda _: client.ask("textDocument/completion", **place))
    measure("editor.hover", lambda _: client.ask("textDocument/hover", **place))
    client.stop()


if __name__ == "__main__":
    main()
