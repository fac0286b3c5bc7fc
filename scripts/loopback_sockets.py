"""Sockets on loopback, IPv4 and IPv6, TCP and UDP, in every state in which a process can hold one."""
import socket

STATES = {"LISTEN", "ESTABLISHED", "SYN_SENT", "FIN_WAIT_1", "FIN_WAIT_2", "CLOSE_WAIT", "LAST_ACK", "CLOSING", "—"}


def pair(address="127.0.0.1", family=socket.AF_INET):
    """A connection, its two ends first and then the socket that listens."""
    listening = socket.create_server((address, 0), family=family)
    client = socket.socket(family)
    client.connect(listening.getsockname())
    return client, listening.accept()[0], listening


def fill(sender):
    """Sends until the other end, which reads nothing, takes no more: what follows stays unacknowledged."""
    sender.settimeout(0.3)
    try:
        while True:
            sender.send(bytes(65536))
    except TimeoutError:
        pass


def closed_first():
    """FIN_WAIT_2 and CLOSE_WAIT."""
    ends = pair()
    ends[0].shutdown(socket.SHUT_WR)
    ends[1].recv(1)
    return ends


def closed_unread():
    """FIN_WAIT_1 and ESTABLISHED."""
    ends = pair()
    fill(ends[0])
    ends[0].shutdown(socket.SHUT_WR)
    return ends


def closed_last():
    """LAST_ACK and FIN_WAIT_2."""
    ends = closed_first()
    fill(ends[1])
    ends[1].shutdown(socket.SHUT_WR)
    return ends


def closed_both():
    """CLOSING and FIN_WAIT_2."""
    ends = closed_unread()
    ends[1].shutdown(socket.SHUT_WR)
    return ends


def unanswered():
    """SYN_SENT: the queue of the listening socket holds one connection, and it is full."""
    listening = socket.create_server(("127.0.0.1", 0), backlog=0)
    queued = socket.create_connection(listening.getsockname())
    waiting = socket.socket()
    waiting.setblocking(False)
    waiting.connect_ex(listening.getsockname())
    return queued, waiting, listening


def datagrams():
    bound = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    bound.bind(("127.0.0.1", 0))
    everywhere = socket.socket(socket.AF_INET6, socket.SOCK_DGRAM)
    everywhere.bind(("::", 0))
    connected = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    connected.connect(bound.getsockname())
    return bound, everywhere, connected


def open_sockets():
    held = [*pair(), *pair("::1", socket.AF_INET6), *closed_first(), *closed_unread(), *closed_last(), *closed_both(),
            *unanswered(), *datagrams()]
    everywhere = socket.create_server(("::", 0), family=socket.AF_INET6, dualstack_ipv6=True)
    mapped = socket.create_connection(("127.0.0.1", everywhere.getsockname()[1]))
    held += [everywhere, mapped, everywhere.accept()[0], socket.create_server(("", 0))]
    return held + [held[0].dup()]
