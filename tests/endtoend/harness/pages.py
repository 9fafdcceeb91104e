"""A web server on this machine, with a page on which every place has a colour of its own."""

import http.server
import threading

CELL = 20  # pixels
COLUMNS, ROWS = 96, 54  # as many as a screen of 1920x1080 has

# A field to be typed into stands at FIELD, and what was typed goes to /typed.
FIELD = (420, 430)

PAGE = f"""<!DOCTYPE html><html><body style="margin:0;overflow:hidden">
<canvas id="board" width="{COLUMNS * CELL}" height="{ROWS * CELL}" style="position:absolute;left:0;top:0"></canvas>
<form action="/typed" style="position:absolute;left:{FIELD[0] - 20}px;top:{FIELD[1] - 20}px">
<input name="text" style="width:80px;height:40px"></form>
<script>
const pen = document.getElementById("board").getContext("2d");
for (let row = 0; row < {ROWS}; row++) for (let column = 0; column < {COLUMNS}; column++) {{
  pen.fillStyle = `rgb(${{40 + 2 * column}}, ${{40 + 4 * row}}, 128)`;
  pen.fillRect(column * {CELL}, row * {CELL}, {CELL}, {CELL});
}}
</script></body></html>"""


# What a page must not be able to do to the station, by path.
BAD = {
    "/dialogs": "<body><script>for (let i = 0; i < 1000; i++) { alert(i); confirm(i); prompt(i) }"
    "document.body.style.background = '#00ff00'; window.onbeforeunload = () => 'Stay'</script></body>",
    "/busy": "<body style='background: #0000ff'><script>setTimeout(() => { for (;;); }, 2000)</script></body>",
    "/windows": "<body style='background: #00ffff'><script>for (let i = 0; i < 100; i++) window.open('about:blank')"
    "</script></body>",
}
# One whose beginning alone comes, and one of which nothing ever does.
ENDLESS, NEVER = "/endless", "/never"
BEGINNING = "<body style='background: #ff00ff'><p>The beginning</p>"


def colour_at(x, y):
    """What the page shows there, counted from its own left top corner."""
    return 40 + 2 * (x // CELL), 40 + 4 * (y // CELL), 128


class Pages:
    """Serves until it is left. `asked` is every path that was asked for, in order."""

    def __enter__(self):
        asked = self.asked = []
        left = self._left = threading.Event()

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                asked.append(self.path)
                if self.path == NEVER:
                    left.wait()
                    return
                endless = self.path == ENDLESS
                body = (BEGINNING if endless else BAD.get(self.path, PAGE)).encode()
                self.send_response(200)
                self.send_header("Content-Type", "text/html")
                self.send_header("Content-Length", str(len(body) + endless))
                self.send_header("Cache-Control", "no-store")
                self.end_headers()
                self.wfile.write(body)
                if endless:
                    self.wfile.flush()
                    left.wait()

            def log_message(self, *_):
                pass

        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.address = self.at("/board")
        threading.Thread(target=self._server.serve_forever, daemon=True).start()
        return self

    def at(self, path):
        return f"http://127.0.0.1:{self._server.server_port}{path}"

    def __exit__(self, *_):
        self._left.set()
        self._server.shutdown()
        self._server.server_close()
