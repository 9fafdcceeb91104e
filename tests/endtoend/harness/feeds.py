"""A news feed on loopback."""

import html
import http.server
import threading


class Feed:
    """Serves these titles, the newest first, as RSS. Leave it as a context; `asked` counts who came for it."""

    def __init__(self, *titles):
        self.titles = titles
        self.asked = 0
        self.gone = False

    def __enter__(self):
        feed = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                feed.asked += 1
                self.send_response(503 if feed.gone else 200)
                self.end_headers()
                self.wfile.write(b"" if feed.gone else feed.body())

            def log_message(self, *_):
                pass

        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        threading.Thread(target=self._server.serve_forever, daemon=True).start()
        self.address = f"http://127.0.0.1:{self._server.server_address[1]}/rss.xml"
        return self

    def __exit__(self, *_):
        self._server.shutdown()
        self._server.server_close()

    def body(self):
        """As newspapers send it: the titles are HTML within the XML."""
        items = "".join(f"<item><title>{html.escape(title)}</title></item>" for title in self.titles)
        return f'<?xml version="1.0"?><rss version="2.0"><channel><title>News</title>{items}</channel></rss>'.encode()
