"""An HTTPS server with one answer a path, for tests: https_test_server.py CERTIFICATE KEY

Serves on a free port of the loopback interface and prints "https PORT" and "http PORT" once it listens; the plain HTTP
server gives the same answers. Prints "asked PATH" for each request. Ends when its standard input is closed.
"""

import http.server
import socketserver
import ssl
import sys
import threading

NEWER = b'{"version":"99.1","url":"https://tarvo.example/get","notes":"Quicker"}'


class Answers(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    stopping = threading.Event()

    def do_GET(self):
        print("asked", self.path, flush=True)
        getattr(self, "answer_" + self.path.strip("/").replace("-", "_"), self.answer_missing)()

    def reply(self, body, status=200, headers=()):
        self.send_response(status)
        for name, value in headers:
            self.send_header(name, value)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def answer_newer(self):
        self.reply(NEWER)

    def answer_older(self):
        self.reply(b'{"version":"0.0.1","url":"https://tarvo.example/get"}')

    def answer_malformed(self):
        self.reply(b'{"version":"99.1","url":')

    def answer_address(self):
        self.reply(b" 203.0.113.7\n")

    def answer_empty(self):
        self.reply(b"")

    def answer_missing(self):
        self.reply(NEWER, 404)

    def answer_broken(self):
        self.reply(NEWER, 500)

    def answer_slow(self):
        self.stopping.wait(30)

    def answer_dribble(self):
        self.send_response(200)
        self.send_header("Content-Length", "100000")
        self.end_headers()
        while not self.stopping.wait(0.02):
            self.wfile.write(b" ")

    def answer_short(self):
        self.send_response(200)
        self.send_header("Content-Length", "1000")
        self.end_headers()
        self.wfile.write(NEWER)
        self.close_connection = True

    def answer_huge(self):
        self.reply(b" " * (1 << 20) + NEWER)

    def answer_largest(self):
        self.reply(NEWER.ljust(1 << 20))

    def answer_huge_in_parts(self):
        self.send_response(200)
        self.send_header("Transfer-Encoding", "chunked")
        self.end_headers()
        part = b" " * 65536
        for _ in range(3200):
            self.wfile.write(b"%x\r\n" % len(part) + part + b"\r\n")
        self.wfile.write(b"0\r\n\r\n")

    def answer_elsewhere(self):
        self.redirect(f"https://127.0.0.1:{secure.server_address[1]}/newer")

    def answer_to_plain(self):
        self.redirect(f"http://127.0.0.1:{plain.server_address[1]}/newer")

    def answer_in_circles(self):
        self.redirect("/in-circles")

    def redirect(self, address):
        self.reply(b"", 302, [("Location", address)])

    def answer_cookies(self):
        self.reply((self.headers.get("Cookie") or "none").encode(), headers=[("Set-Cookie", "id=1")])

    def answer_agent(self):
        self.reply(self.headers.get("User-Agent", "").encode())

    def log_message(self, *arguments):
        pass


class Server(socketserver.ThreadingMixIn, http.server.HTTPServer):
    daemon_threads = True

    def handle_error(self, request, client_address):
        pass  # clients that hang up are what the tests are about


plain = Server(("127.0.0.1", 0), Answers)
secure = Server(("127.0.0.1", 0), Answers)
context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
context.load_cert_chain(sys.argv[1], sys.argv[2])
# The handshake belongs to the connection's own thread: one that fails must not stop the server.
secure.socket = context.wrap_socket(secure.socket, server_side=True, do_handshake_on_connect=False)
for server in (plain, secure):
    threading.Thread(target=server.serve_forever, daemon=True).start()
print("https", secure.server_address[1], flush=True)
print("http", plain.server_address[1], flush=True)
sys.stdin.read()
Answers.stopping.set()
