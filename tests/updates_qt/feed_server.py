#!/usr/bin/python3
"""An HTTPS host on localhost that answers well or badly, as the first part of a path says: /MANNER/NAME is about the
file NAME of a folder. Prints its port and that of a plain HTTP host for the same files; ends with its standard input.

    feed_server.py CERTIFICATE KEY FOLDER
"""
import http.server
import select
import ssl
import sys
import threading
from pathlib import Path

CERTIFICATE, KEY, FOLDER = sys.argv[1], sys.argv[2], Path(sys.argv[3]).resolve()
ENDLESS = b" " * 4096


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        manner, name = self.path.strip("/").split("/")
        try:
            getattr(self, "answer_" + manner.replace("-", "_"))(name)
        except (ConnectionError, ssl.SSLError):
            pass  # the client has had enough

    def head(self, status, **headers):
        self.send_response(status)
        for key, value in headers.items():
            self.send_header(key.replace("_", "-"), value)
        self.end_headers()

    def whole(self, status, name):
        body = (FOLDER / name).read_bytes()
        self.head(status, Content_Length=len(body))
        self.wfile.write(body)

    def clientLeaves(self, seconds=None):
        return bool(select.select([self.connection], [], [], seconds)[0])

    def answer_good(self, name):
        if (FOLDER / name).exists():
            self.whole(200, name)
        else:
            self.head(404, Content_Length=0)

    def answer_gone(self, name):
        self.whole(404, name)

    def answer_partial(self, name):
        self.whole(206, name)

    def answer_truncated(self, name):
        body = (FOLDER / name).read_bytes()
        self.head(200, Content_Length=len(body) + 1)
        self.wfile.write(body)

    def answer_endless(self, _):
        self.head(200)
        while True:
            self.wfile.write(ENDLESS)

    def answer_endless_error(self, _):
        self.head(500)
        while True:
            self.wfile.write(ENDLESS)

    def answer_slow(self, _):
        self.head(200)
        while not self.clientLeaves(0.01):
            self.wfile.write(b" ")

    def answer_silent(self, _):
        self.clientLeaves()

    def answer_moved(self, name):
        self.head(302, Location=f"/good/{name}", Content_Length=0)

    def answer_moved_to_http(self, name):
        self.head(302, Location=f"http://localhost:{plain.server_port}/good/{name}", Content_Length=0)

    def answer_moved_to_file(self, name):
        self.head(302, Location=f"file://{FOLDER / name}", Content_Length=0)

    def answer_moved_again(self, name):
        self.head(302, Location=f"/moved-again/{name}", Content_Length=0)

    def log_message(self, *_):
        pass


class SecureHost(http.server.ThreadingHTTPServer):
    """Shakes hands in the request's own thread, so that a client that breaks off disturbs no other."""

    def finish_request(self, request, client_address):
        try:
            with context.wrap_socket(request, server_side=True) as secured:
                super().finish_request(secured, client_address)
        except (ConnectionError, ssl.SSLError):
            pass  # it did not trust the certificate


context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
context.load_cert_chain(CERTIFICATE, KEY)
secure = SecureHost(("127.0.0.1", 0), Handler)
plain = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
for host in (secure, plain):
    threading.Thread(target=host.serve_forever, daemon=True).start()
print(secure.server_port, plain.server_port, flush=True)
sys.stdin.read()
