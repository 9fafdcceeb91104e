"""A live stream over RTSP, its packets between the answers of the one connection."""

import socket
import socketserver
import struct
import threading

DESCRIPTION = b"v=0\r\no=- 0 0 IN IP4 127.0.0.1\r\ns=live\r\nt=0 0\r\nm=video 0 RTP/AVP 33\r\na=control:track\r\n"
LARGEST = 65536  # bytes of a packet


class RtspServer(socketserver.ThreadingTCPServer):
    """`make` starts what sends the stream, an MPEG transport stream in RTP packets, to a port of this machine; it is
    called once for each who plays it."""

    def __init__(self, make):
        super().__init__(("127.0.0.1", 0), _Handler)
        self.make = make


class _Handler(socketserver.StreamRequestHandler):
    def handle(self):
        self._writing = threading.Lock()
        try:
            while line := self.rfile.readline():
                headers = {}
                while (row := self.rfile.readline().strip()) != b"":
                    name, _, value = row.partition(b":")
                    headers[name.lower()] = value.strip()
                self._answer(line.split()[0], headers[b"cseq"])
        except OSError:
            pass  # nobody listens any more

    def _answer(self, method, number):
        headers, body = [b"CSeq: " + number, b"Session: 1"], b""
        if method == b"OPTIONS":
            headers.append(b"Public: OPTIONS, DESCRIBE, SETUP, PLAY, TEARDOWN")
        elif method == b"DESCRIBE":
            body = DESCRIPTION
            headers += [b"Content-Type: application/sdp", b"Content-Length: %d" % len(body)]
        elif method == b"SETUP":
            headers.append(b"Transport: RTP/AVP/TCP;unicast;interleaved=0-1")
        self._write(b"\r\n".join([b"RTSP/1.0 200 OK", *headers, b"", body]))
        if method == b"PLAY":
            threading.Thread(target=self._pass_on, daemon=True).start()

    def _pass_on(self):
        with socket.socket(type=socket.SOCK_DGRAM) as packets:
            packets.bind(("127.0.0.1", 0))
            source = self.server.make(packets.getsockname()[1])
            try:
                while packet := packets.recv(LARGEST):
                    self._write(b"$\0" + struct.pack(">H", len(packet)) + packet)
            except OSError:
                source.kill()

    def _write(self, text):
        with self._writing:
            self.wfile.write(text)
