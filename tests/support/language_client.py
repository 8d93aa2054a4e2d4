"""A client of the language server, for tests: sends what an editor sends and reads what comes back."""

import json
import subprocess


class Client:
    def __init__(self, command):
        self.process = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.requests = 0
        self.findings = {}  # by URI, as they were published last
        self.versions = {}

    def send_raw(self, content):
        self.process.stdin.write(b"Content-Length: %d\r\n\r\n" % len(content) + content)
        self.process.stdin.flush()

    def notify(self, method, **params):
        self.send_raw(json.dumps({"jsonrpc": "2.0", "method": method, "params": params}).encode())

    def read(self):
        length = 0
        while (line := self.process.stdout.readline()) != b"\r\n":
            if not line:
                raise EOFError("the server has ended")
            name, value = line.split(b":")
            if name.lower() == b"content-length":
                length = int(value)
        message = json.loads(self.process.stdout.read(length))
        if message.get("method") == "textDocument/publishDiagnostics":
            params = message["params"]
            self.findings[params["uri"]] = params["diagnostics"]
            self.versions[params["uri"]] = params.get("version")
        return message

    def ask(self, method, **params):
        """The whole reply, result or error."""
        self.requests += 1
        request = {"jsonrpc": "2.0", "id": self.requests, "method": method, "params": params}
        self.send_raw(json.dumps(request).encode())
        while (message := self.read()).get("id") != self.requests:
            pass
        return message

    def start(self):
        reply = self.ask("initialize", processId=None, rootUri=None, capabilities={})
        self.notify("initialized")
        return reply["result"]

    def open(self, uri, text, version=1):
        """The findings."""
        self.notify("textDocument/didOpen",
                    textDocument={"uri": uri, "languageId": "lisp", "version": version, "text": text})
        return self.wait_findings(uri, version)

    def wait_findings(self, uri, version):
        while self.versions.get(uri) != version:
            self.read()
        return self.findings[uri]

    def close(self, uri):
        self.notify("textDocument/didClose", textDocument={"uri": uri})
        while self.findings.get(uri) != []:
            self.read()
        self.versions.pop(uri, None)

    def stop(self):
        """The server's exit status."""
        self.ask("shutdown")
        self.notify("exit")
        return self.process.wait(60)
