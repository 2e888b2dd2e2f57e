"""Requests to the SQL service, byte by byte."""

import os
import pathlib
import socket
import struct
import subprocess

QUERY, EXECUTE = 1, 2
GROUPS, URLS, SCALAR = 5, 2, 100


def path(name):
    """A path of src/core/paths.h."""
    script = pathlib.Path(__file__).parent / ".." / ".." / "scripts" / "path"
    return subprocess.run([script, name], check=True, capture_output=True, text=True).stdout.strip()


SOCKET = os.environ.get("ATTACKED_SOCKET") or path("service_socket")


def request(table, operation, text):
    """A request as it travels."""
    return struct.pack("=3I", table, operation, len(text)) + text.encode()


def connect():
    """A connection that waits for half a minute at most."""
    peer = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
    peer.connect(SOCKET)
    peer.settimeout(30)
    return peer


def receive(peer):
    """What comes until the service hangs up."""
    reply = bytearray()
    try:
        while piece := peer.recv(1 << 18):
            reply += piece
    except OSError:
        pass
    return bytes(reply)


def exchange(sent):
    """The reply to some bytes; none where the service hangs up."""
    with connect() as peer:
        try:
            peer.sendall(sent)
        except OSError:
            return b""
        return receive(peer)


def ask(sent):
    """The size of a reply, read as far as it says."""
    with connect() as peer:
        peer.sendall(sent)
        size = left = struct.unpack("=3I", peer.recv(12, socket.MSG_WAITALL))[2]
        while left > 0 and (piece := peer.recv(min(left, 1 << 18))):
            left -= len(piece)
        return size if left == 0 else 0
