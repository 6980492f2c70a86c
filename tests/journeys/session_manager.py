"""A session manager as desktops have one, in the words of the X Session Management Library."""

import contextlib
import ctypes
import select
import time

ice = ctypes.CDLL("libICE.so.6")
sm = ctypes.CDLL("libSM.so.6")

POINTER = ctypes.c_void_p
SAVE_BOTH = 2
INTERACT_ANY = 2
ERROR_LENGTH = 256

broken = ctypes.CFUNCTYPE(None, POINTER)
accepts_host = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_char_p)
register = ctypes.CFUNCTYPE(ctypes.c_int, POINTER, POINTER, POINTER)
with_number = ctypes.CFUNCTYPE(None, POINTER, POINTER, ctypes.c_int)
without_more = ctypes.CFUNCTYPE(None, POINTER, POINTER)
closed = ctypes.CFUNCTYPE(None, POINTER, POINTER, ctypes.c_int, POINTER)
properties = ctypes.CFUNCTYPE(None, POINTER, POINTER, ctypes.c_int, POINTER)
save_request = ctypes.CFUNCTYPE(None, POINTER, POINTER, *[ctypes.c_int] * 5)


class Callbacks(ctypes.Structure):
    """`SmsCallbacks`: each function is followed by a pointer of its own, which is not used here."""

    _fields_ = [
        field
        for name, kind in (
            ("register_client", register),
            ("interact_request", with_number),
            ("interact_done", with_number),
            ("save_yourself_request", save_request),
            ("save_yourself_phase2_request", without_more),
            ("save_yourself_done", with_number),
            ("close_connection", closed),
            ("set_properties", properties),
            ("delete_properties", properties),
            ("get_properties", without_more),
        )
        for field in ((name, kind), (name + "_data", POINTER))
    ]


new_client = ctypes.CFUNCTYPE(
    ctypes.c_int,
    POINTER,
    POINTER,
    ctypes.POINTER(ctypes.c_ulong),
    ctypes.POINTER(Callbacks),
    ctypes.POINTER(ctypes.c_char_p),
)
EVERY_CALLBACK = (1 << 10) - 1

for library, name, result, arguments in (
    (sm, "SmsInitialize", ctypes.c_int, [ctypes.c_char_p] * 2 + [new_client, POINTER, accepts_host, ctypes.c_int, POINTER]),
    (sm, "SmsRegisterClientReply", ctypes.c_int, [POINTER, POINTER]),
    (sm, "SmsGenerateClientID", POINTER, [POINTER]),
    (sm, "SmsSaveYourself", None, [POINTER] + [ctypes.c_int] * 4),
    (sm, "SmsSaveComplete", None, [POINTER]),
    (sm, "SmsInteract", None, [POINTER]),
    (sm, "SmsDie", None, [POINTER]),
    (ice, "IceSetIOErrorHandler", POINTER, [broken]),
    (ice, "IceListenForConnections", ctypes.c_int, [POINTER, POINTER, ctypes.c_int, POINTER]),
    (ice, "IceGetListenConnectionNumber", ctypes.c_int, [POINTER]),
    (ice, "IceSetHostBasedAuthProc", None, [POINTER, accepts_host]),
    (ice, "IceComposeNetworkIdList", ctypes.c_char_p, [ctypes.c_int, POINTER]),
    (ice, "IceAcceptConnection", POINTER, [POINTER, POINTER]),
    (ice, "IceConnectionNumber", ctypes.c_int, [POINTER]),
    (ice, "IceProcessMessages", ctypes.c_int, [POINTER, POINTER, POINTER]),
):
    function = getattr(library, name)
    function.restype, function.argtypes = result, arguments


class SessionManager:
    """Listens from its making on. `address` belongs into the environment of the clients."""

    def __init__(self):
        self.clients = []
        self.connections = []
        self.registered = False
        self.saved = False
        self.kept = []  # what C has been given must not be collected
        error = ctypes.create_string_buffer(ERROR_LENGTH)
        accept = accepts_host(lambda host: 1)
        welcome = new_client(self.welcome)
        survive = broken(lambda connection: None)  # a client that ends would otherwise end this process
        self.kept += [accept, welcome, survive]
        ice.IceSetIOErrorHandler(survive)
        assert sm.SmsInitialize(b"Pelko", b"1", welcome, None, accept, ERROR_LENGTH, error), error.value
        count = ctypes.c_int()
        self.listeners = ctypes.POINTER(POINTER)()
        listened = ice.IceListenForConnections(
            ctypes.byref(count), ctypes.byref(self.listeners), ERROR_LENGTH, error
        )
        assert listened, error.value
        self.count = count.value
        for index in range(self.count):
            ice.IceSetHostBasedAuthProc(self.listeners[index], accept)
        self.address = ice.IceComposeNetworkIdList(self.count, self.listeners).decode()

    def welcome(self, client, _data, mask, callbacks, _reason):
        made = Callbacks()
        made.register_client = register(self.on_register)
        made.interact_request = with_number(lambda client, data, kind: sm.SmsInteract(client))
        made.interact_done = with_number(lambda client, data, cancels: None)
        made.save_yourself_request = save_request(lambda *arguments: None)
        made.save_yourself_phase2_request = without_more(lambda *arguments: None)
        made.save_yourself_done = with_number(self.on_saved)
        made.close_connection = closed(lambda *arguments: None)
        made.set_properties = properties(lambda *arguments: None)
        made.delete_properties = properties(lambda *arguments: None)
        made.get_properties = without_more(lambda *arguments: None)
        self.kept.append(made)
        self.clients.append(client)
        mask[0] = EVERY_CALLBACK
        callbacks[0] = made
        return 1

    def on_register(self, client, _data, _previous):
        sm.SmsRegisterClientReply(client, sm.SmsGenerateClientID(client))
        self.registered = True
        return 1

    def on_saved(self, client, _data, _success):
        self.saved = True
        sm.SmsDie(client)

    def end_session(self):
        for client in self.clients:
            sm.SmsSaveYourself(client, SAVE_BOTH, 1, INTERACT_ANY, 0)

    def serve(self, condition, seconds=30):
        """Works through what clients send until the condition holds."""
        deadline = time.monotonic() + seconds
        while not condition():
            assert time.monotonic() < deadline, "the session manager waits in vain"
            by_number = {ice.IceConnectionNumber(each): each for each in self.connections}
            listening = {ice.IceGetListenConnectionNumber(self.listeners[i]): self.listeners[i] for i in range(self.count)}
            ready, _, _ = select.select([*by_number, *listening], [], [], 0.05)
            for number in ready:
                if number in listening:
                    status = ctypes.c_int()
                    self.connections.append(ice.IceAcceptConnection(listening[number], ctypes.byref(status)))
                elif ice.IceProcessMessages(by_number[number], None, None) != 0:
                    with contextlib.suppress(ValueError):
                        self.connections.remove(by_number[number])
