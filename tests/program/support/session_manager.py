"""A session manager of the X kind (X Session Management Protocol 1.0), by way of the library that programs use too."""
import ctypes
import select
import time

CLIENT_PROC = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_void_p)
REGISTER_PROC = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_char_p)
DONE_PROC = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int)
REQUEST_PROC = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int, ctypes.c_int, ctypes.c_int,
                                ctypes.c_int, ctypes.c_int)
CLOSE_PROC = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int, ctypes.c_void_p)
HOST_PROC = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_char_p)
ERROR_PROC = ctypes.CFUNCTYPE(None, ctypes.c_void_p)
SAVE_LOCAL, SAVE_BOTH, INTERACT_NONE, INTERACT_ANY = 1, 2, 0, 2
CONNECTION_PENDING = 0
NEVER = 3  # RestartNever


class PropertyValue(ctypes.Structure):
    _fields_ = [("length", ctypes.c_int), ("value", ctypes.c_void_p)]


class Property(ctypes.Structure):
    _fields_ = [("name", ctypes.c_char_p), ("type", ctypes.c_char_p), ("count", ctypes.c_int),
                ("values", ctypes.POINTER(PropertyValue))]


SET_PROC = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int,
                            ctypes.POINTER(ctypes.POINTER(Property)))
DELETE_PROC = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int, ctypes.c_void_p)
PROCS = [("register", REGISTER_PROC), ("interact", DONE_PROC), ("interact_done", DONE_PROC),
         ("save_request", REQUEST_PROC), ("phase2", CLIENT_PROC), ("save_done", DONE_PROC), ("close", CLOSE_PROC),
         ("set", SET_PROC), ("delete", DELETE_PROC), ("get", CLIENT_PROC)]


class Callbacks(ctypes.Structure):
    _fields_ = [field for name, proc in PROCS for field in ((name, proc), (name + "_data", ctypes.c_void_p))]


NEW_CLIENT_PROC = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p, ctypes.POINTER(ctypes.c_ulong),
                                   ctypes.POINTER(Callbacks), ctypes.c_void_p)


class SessionManager:
    """Runs only while `run_until` does. `address` is what programs find in SESSION_MANAGER."""

    def __init__(self):
        self.sm = ctypes.CDLL("libSM.so.6")
        self.ice = ctypes.CDLL("libICE.so.6")
        for name in ("IceAcceptConnection", "IceComposeNetworkIdList", "SmsGenerateClientID"):
            getattr(self.sm if name.startswith("Sms") else self.ice, name).restype = ctypes.c_void_p
        self.client = None
        self.saves = 0
        self.properties = {}
        self.connections = []
        self.kept = {"register": REGISTER_PROC(self._register), "save_done": DONE_PROC(self._save_done),
                     "set": SET_PROC(self._set), "close": CLOSE_PROC(lambda *_: None),
                     "interact": DONE_PROC(lambda *_: None), "interact_done": DONE_PROC(lambda *_: None),
                     "save_request": REQUEST_PROC(lambda *_: None), "phase2": CLIENT_PROC(lambda *_: None),
                     "delete": DELETE_PROC(lambda *_: None), "get": CLIENT_PROC(lambda *_: None)}
        self.new_client = NEW_CLIENT_PROC(self._new_client)
        self.every_host = HOST_PROC(lambda _: 1)
        self.no_fault = ERROR_PROC(lambda _: None)
        self.ice.IceSetIOErrorHandler(self.no_fault)
        error = ctypes.create_string_buffer(256)
        if not self.sm.SmsInitialize(b"test", b"1", self.new_client, None, self.every_host, 256, error):
            raise AssertionError("no session manager: " + error.value.decode())
        self.address = self._listen(error)

    def _listen(self, error):
        count = ctypes.c_int()
        listeners = ctypes.POINTER(ctypes.c_void_p)()
        if not self.ice.IceListenForConnections(ctypes.byref(count), ctypes.byref(listeners), 256, error):
            raise AssertionError("no session manager: " + error.value.decode())
        self.listeners = [ctypes.c_void_p(listeners[index]) for index in range(count.value)]
        for listener in self.listeners:
            self.ice.IceSetHostBasedAuthProc(listener, self.every_host)
        return ctypes.string_at(self.ice.IceComposeNetworkIdList(count, listeners)).decode()

    def run_until(self, condition, what, limit=30.0):
        deadline = time.monotonic() + limit
        while not condition():
            if time.monotonic() > deadline:
                raise AssertionError(f"waited {limit:.0f} s in vain for {what}")
            self._turn()

    def end_session(self):
        """Asks the program to save, as at a logout."""
        self.sm.SmsSaveYourself(ctypes.c_void_p(self.client), SAVE_BOTH, 1, INTERACT_ANY, 0)

    def tell_to_die(self):
        self.sm.SmsDie(ctypes.c_void_p(self.client))

    def _turn(self):
        listening = {self.ice.IceGetListenConnectionNumber(listener): listener for listener in self.listeners}
        talking = {self.ice.IceConnectionNumber(connection): connection for connection in self.connections}
        for descriptor in select.select([*listening, *talking], [], [], 0.05)[0]:
            if descriptor in listening:
                self._accept(listening[descriptor])
            elif self.ice.IceProcessMessages(talking[descriptor], None, None) != 0:
                self.connections.remove(talking[descriptor])

    def _accept(self, listener):
        status = ctypes.c_int()
        connection = self.ice.IceAcceptConnection(listener, ctypes.byref(status))
        if not connection:
            return
        connection = ctypes.c_void_p(connection)
        while self.ice.IceConnectionStatus(connection) == CONNECTION_PENDING:
            self.ice.IceProcessMessages(connection, None, None)
        self.connections.append(connection)

    def _new_client(self, client, _data, mask, callbacks, _reason):
        self.client = client
        mask[0] = (1 << len(PROCS)) - 1
        for name, proc in self.kept.items():
            setattr(callbacks[0], name, proc)
        return 1

    def _register(self, client, _data, previous):
        if previous:
            return 0
        client = ctypes.c_void_p(client)
        self.sm.SmsRegisterClientReply(client, ctypes.c_void_p(self.sm.SmsGenerateClientID(client)))
        self.sm.SmsSaveYourself(client, SAVE_LOCAL, 0, INTERACT_NONE, 0)
        return 1

    def _save_done(self, client, _data, _success):
        self.saves += 1
        self.sm.SmsSaveComplete(ctypes.c_void_p(client))

    def _set(self, _client, _data, count, properties):
        for index in range(count):
            found = properties[index][0]
            if found.count:
                value = found.values[0]
                self.properties[found.name.decode()] = ctypes.string_at(value.value, value.length)
