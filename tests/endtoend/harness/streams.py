"""Live streams on loopback, made by ffmpeg as they are sent."""

import functools
import http.server
import shutil
import socket
import ssl
import subprocess
import threading

from . import media
from .patience import until
from .rtsp import RtspServer

SEGMENT_SECONDS = 1
# What ffmpeg's address has behind the port, and the form that it sends. Of these srt and rtmp wait for somebody.
SENDERS = {
    "udp": ("?pkt_size=1316", ("-f", "mpegts")),
    "rtp": ("", ("-f", "rtp_mpegts")),
    "srt": ("?mode=listener", ("-f", "mpegts")),
    "rtmp": ("/live/one", ("-f", "flv", "-listen", "1")),
}
# What is sent as it is made, by the first folder of its address: its type, and ffmpeg's form.
LIVE = {"ts": ("video/mp2t", "mpegts"), "mms": ("application/x-mms-framed", "asf_stream")}


class Streams:
    """A server of live streams, each of one colour, for one scenario; `folder` is scratch space. Leave it as a context."""

    def __init__(self, folder):
        self._folder = folder
        self._folder.mkdir()
        self._makers = []
        self._servers = []
        self._port = 0
        self._colours = []
        self.flowing = threading.Event()
        self.flowing.set()

    def __enter__(self):
        self._port = self._serve(0)
        return self

    def __exit__(self, *_):
        self.cut()

    def mpeg_ts(self, colour):
        """The address of a plain MPEG transport stream."""
        return f"http://127.0.0.1:{self._port}/ts/{colour}"

    def hls(self, colour):
        """The address of an HLS playlist, which is there when this returns."""
        self._colours.append(colour)
        self._make_hls(colour)
        return f"http://127.0.0.1:{self._port}/{colour}/live.m3u8"

    def over(self, scheme, colour):
        """The address of a stream that is sent by one of the schemes of SENDERS, to whoever asks first."""
        query, form = SENDERS[scheme]
        address = f"{scheme}://127.0.0.1:{_free_port()}"
        self.maker(colour, *form, address + query)
        return address + query if scheme == "rtmp" else address

    def https(self, colour):
        """The address of a plain MPEG transport stream whose sender nobody vouches for."""
        certificate = self._folder / "certificate.pem"
        command = ["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=127.0.0.1"]
        subprocess.run([*command, "-keyout", certificate, "-out", certificate], check=True, capture_output=True)
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(certificate)
        return f"https://127.0.0.1:{self._serve(0, context)}/ts/{colour}"

    def mms(self, colour):
        """The address of a stream as media servers of Windows send it over HTTP."""
        return f"mms://127.0.0.1:{self._port}/mms/{colour}"

    def rtsp(self, colour):
        """The address of a stream that is asked for by RTSP."""
        server = RtspServer(lambda port: self.maker(colour, "-f", "rtp_mpegts", f"rtp://127.0.0.1:{port}?pkt_size=1316"))
        return f"rtsp://127.0.0.1:{self._begin(server)}/{colour}"

    def stall(self):
        """Nothing more comes of the plain streams, whose connections stay."""
        self.flowing.clear()

    def cut(self):
        """The sources die in mid-sentence, and nothing answers any more."""
        self.flowing.set()
        for server in self._servers:
            server.shutdown()
            server.server_close()
        self._servers = []
        for maker in self._makers:
            maker.kill()
            maker.wait()
        self._makers = []

    def mend(self):
        """The sources begin anew, under the same addresses."""
        for colour in self._colours:
            shutil.rmtree(self._folder / colour)
            self._make_hls(colour)
        self._port = self._serve(self._port)

    def _serve(self, port, tls=None):
        """The port that it is at: this one, or a free one for 0."""
        handler = functools.partial(_Handler, self, directory=str(self._folder))
        server = http.server.ThreadingHTTPServer(("127.0.0.1", port), handler)
        if tls is not None:
            server.socket = tls.wrap_socket(server.socket, server_side=True)
        return self._begin(server)

    def _begin(self, server):
        """Has it answer until the sources are cut; its port."""
        server.daemon_threads = True
        server.block_on_close = False
        self._servers.append(server)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        return server.server_address[1]

    def _make_hls(self, colour):
        folder = self._folder / colour
        folder.mkdir()
        playlist = folder / "live.m3u8"
        self.maker(colour, "-f", "hls", "-hls_time", str(SEGMENT_SECONDS), "-hls_list_size", "4",
                   "-hls_flags", "delete_segments", str(playlist))
        until("the first segments", lambda: playlist.exists() and len(list(folder.glob("*.ts"))) > 2)

    def maker(self, colour, *form):
        """An ffmpeg that makes the stream at the speed of time."""
        command = ["ffmpeg", "-nostdin", "-loglevel", "error", *media.endless(colour), *form]
        maker = subprocess.Popen(command, stdout=subprocess.PIPE, stdin=subprocess.DEVNULL)
        self._makers.append(maker)
        return maker


def _free_port():
    with socket.socket() as taken:
        taken.bind(("127.0.0.1", 0))
        return taken.getsockname()[1]


class _Handler(http.server.SimpleHTTPRequestHandler):
    def __init__(self, streams, *arguments, **keywords):
        self._streams = streams
        super().__init__(*arguments, **keywords)

    def do_GET(self):
        _, kind, name, *_ = f"{self.path}//".split("/")
        if kind not in LIVE:
            return super().do_GET()
        content, form = LIVE[kind]
        self.send_response(200)
        self.send_header("Content-Type", content)
        self.end_headers()
        source = self._streams.maker(name, "-f", form, "-")
        try:
            while piece := source.stdout.read1(65536):
                self._streams.flowing.wait()
                self.wfile.write(piece)
        except OSError:
            source.kill()  # nobody listens any more

    def log_message(self, *_):
        pass
