"""What bad clients do. Each function does it once, on connections that it may go on holding."""

import os
import random
import socket
import time

import client
from client import EXECUTE, GROUPS, QUERY, SCALAR, URLS, request

WHOLE = request(SCALAR, QUERY, "select 'of somebody else';")
ROWS = "with recursive n(i) as (select 1 union all select i + 1 from n limit %d) select i, 'row' from n;"
ENDLESS = "with recursive n(i) as (select 1 union all select i + 1 from n) select count(*) from n;"
FILE = "/tmp/made-by-an-attack"

#: How many connections one process keeps at a time.
KEPT = 25


class Wrong(Exception):
    """The service has done what it must not do."""


def hold(held, sent):
    """Holds as many connections as one process keeps, each with bytes of its own sent, in place of those that are over."""
    for peer in list(held):
        try:
            over = peer.recv(1, socket.MSG_PEEK) == b""
        except BlockingIOError:
            over = False
        except OSError:
            over = True
        if over:
            peer.close()
            held.remove(peer)
    while len(held) < KEPT:
        peer = client.connect()
        peer.setblocking(False)
        held.append(peer)
        peer.send(sent())
    time.sleep(0.01)


def half(held):
    """Half requests: a part of a header, or a header and a part of its text."""
    hold(held, lambda: WHOLE[: random.choice((0, 1, 11, 12, 20, len(WHOLE) - 1))])


def slow(held):
    """Requests that come byte by byte and never come to an end."""
    hold(held, lambda: request(GROUPS, EXECUTE, " " * 1000)[:1])
    for peer in held:
        try:
            peer.send(b"\0")
        except OSError:
            pass  # it is over


def sizes(_held):
    """Sizes that are wrong: larger than a request may be, or than what follows."""
    for size in (65537, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF):
        if client.exchange(WHOLE[:8] + size.to_bytes(4, "little") + WHOLE[12:]):
            raise Wrong(f"a request of {size} bytes is answered")
    if client.exchange(WHOLE[:8] + b"\0\0\0\0" + WHOLE[12:]):
        raise Wrong("a request without a text is answered")


def hang_up(_held):
    """Clients that hang up at every byte of a request, or before its reply."""
    for size in range(len(WHOLE) + 1):
        with client.connect() as peer:
            peer.send(WHOLE[:size])


def unread(held):
    """Clients that do not read their replies, each larger than a connection holds."""
    hold(held, lambda: request(URLS, QUERY, ROWS % 128))


def refused(text):
    """Sends a text in every way there is, and none is to be answered."""
    for table, operation in ((SCALAR, QUERY), (GROUPS, QUERY), (GROUPS, EXECUTE)):
        if client.exchange(request(table, operation, text)):
            raise Wrong(f"it answers {text}")


def files(_held):
    """ATTACH and VACUUM INTO, which would make files."""
    refused(f"attach '{FILE}' as made;")
    refused(f"vacuum into '{FILE}';")
    refused(f"vacuum/**/main into '{FILE}';")
    if os.path.exists(FILE):
        raise Wrong(f"it has made {FILE}")


def many_rows(_held):
    """200,000 rows: refused, or ended where a list does."""
    reply = client.exchange(request(GROUPS, QUERY, ROWS % 200_000))
    if len(reply) > 12 + 128 * 380:
        raise Wrong(f"it replies with {len(reply)} bytes")


def memory(_held):
    """A text of 300 MB."""
    if client.exchange(request(SCALAR, QUERY, "select length(hex(zeroblob(150000000)));")):
        raise Wrong("it has memory for 300 MB")


def endless(_held):
    """Queries without end, whose clients have gone."""
    with client.connect() as peer:
        peer.send(request(SCALAR, QUERY, ENDLESS))
        peer.shutdown(socket.SHUT_RD)
    time.sleep(1)


#: By name: what is done, and whether other clients wait for what is done, as it holds the lock of the database.
ATTACKS = {
    "half": (half, False),
    "slow": (slow, False),
    "sizes": (sizes, False),
    "hang-up": (hang_up, False),
    "unread": (unread, False),
    "files": (files, False),
    "rows": (many_rows, False),
    "memory": (memory, False),
    "endless": (endless, True),
}
