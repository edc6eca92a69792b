"""A session manager of X11, with which programs register and which tells them that the user logs out.

    manager = SessionManager()
    program = Program(desk, environment=manager.environment)
    manager.wait_for_client()
    manager.log_out()           until the program has saved itself and is told to end

It runs on a thread of its own, over the libraries that every program with such a session has: libSM, and libICE below it.
"""
import ctypes
import queue
import select
import threading
from ctypes import CFUNCTYPE, POINTER, byref, c_char_p, c_int, c_ulong, c_void_p

from spoken import wait_for

ICE, SM = ctypes.CDLL("libICE.so.6"), ctypes.CDLL("libSM.so.6")
for _function in (ICE.IceAcceptConnection, ICE.IceComposeNetworkIdList, SM.SmsGenerateClientID):
    _function.restype = c_void_p

PENDING, ACCEPTED = 0, 1                                  # the states of a connection
NO_QUESTIONS, ANY_QUESTIONS = 0, 2                        # what a program may ask its user while it saves itself
LOCAL, BOTH = 1, 2                                        # which of its states it is to save
ALL_CALLBACKS = 0x3FF
ERROR_LENGTH = 256
NAMES = ["register", "interact", "interact_done", "save_request", "phase_2", "saved", "close", "set_properties", "delete_properties",
         "get_properties"]  # in the order of SmsCallbacks


class _Callback(ctypes.Structure):
    _fields_ = [("procedure", c_void_p), ("data", c_void_p)]


# Each takes a connection, some data and two more words, of which it looks at those that it has.
_Procedure = CFUNCTYPE(c_int, c_void_p, c_void_p, c_void_p, c_void_p)
_NewClient = CFUNCTYPE(c_int, c_void_p, c_void_p, POINTER(c_ulong), POINTER(_Callback), POINTER(c_char_p))
_MayCome = CFUNCTYPE(c_int, c_char_p)
_Gone = CFUNCTYPE(None, c_void_p)
_gone = _Gone(lambda _connection: None)  # the library's own ends the process
ICE.IceSetIOErrorHandler(_gone)


class SessionManager:
    def __init__(self):
        self.client = None     # registered with it
        self.questions = 0     # that it wanted to ask its user
        self.has_saved = False
        self._logs_out = False
        self._orders = queue.Queue()
        self._connections = {}  # file descriptor: connection
        self._procedures = [_Procedure(getattr(self, f"_{name}", self._ignore)) for name in NAMES]
        self._new_client, self._may_come = _NewClient(self._take_client), _MayCome(lambda _host: 1)
        self._listen()
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()

    def close(self):
        self._orders.put(None)
        self._thread.join()
        ICE.IceFreeListenObjs(len(self._listeners), self._listener_list)

    def wait_for_client(self):
        wait_for("a program in the session", lambda: self.client)

    def log_out(self):
        """The program may ask its user what it likes; nobody answers."""
        self._orders.put(self._ask_to_save)
        wait_for("the program to save itself", lambda: self.has_saved)
        self._orders.put(self._tell_to_end)

    # ---- On its thread ----

    def _listen(self):
        error, count, listeners = ctypes.create_string_buffer(ERROR_LENGTH), c_int(), POINTER(c_void_p)()
        if not SM.SmsInitialize(b"test", b"1", self._new_client, None, self._may_come, ERROR_LENGTH, error) or \
                not ICE.IceListenForConnections(byref(count), byref(listeners), ERROR_LENGTH, error):
            raise AssertionError(error.value.decode())
        self._listeners, self._listener_list = {}, listeners
        for place in range(count.value):
            ICE.IceSetHostBasedAuthProc(c_void_p(listeners[place]), self._may_come)
            self._listeners[ICE.IceGetListenConnectionNumber(c_void_p(listeners[place]))] = c_void_p(listeners[place])
        names = ctypes.cast(ICE.IceComposeNetworkIdList(count, listeners), c_char_p).value.decode()
        self.environment = {"SESSION_MANAGER": names}

    def _run(self):
        while True:
            for file in select.select([*self._listeners, *self._connections], [], [], 0.05)[0]:
                self._accept(self._listeners[file]) if file in self._listeners else self._process(file)
            while not self._orders.empty():
                order = self._orders.get()
                if order is None:
                    return
                order()

    def _accept(self, listener):
        connection = c_void_p(ICE.IceAcceptConnection(listener, byref(c_int())))
        while ICE.IceConnectionStatus(connection) == PENDING:
            ICE.IceProcessMessages(connection, None, None)
        if ICE.IceConnectionStatus(connection) == ACCEPTED:
            self._connections[ICE.IceConnectionNumber(connection)] = connection

    def _process(self, file):
        if ICE.IceProcessMessages(self._connections[file], None, None) != 0:  # it has gone
            self._connections.pop(file, None)

    def _ask_to_save(self):
        self._logs_out = True
        SM.SmsSaveYourself(c_void_p(self.client), BOTH, 1, ANY_QUESTIONS, 0)

    def _tell_to_end(self):
        SM.SmsDie(c_void_p(self.client))

    # ---- What the program says ----

    def _take_client(self, _connection, _data, mask, callbacks, _reason):
        mask[0] = ALL_CALLBACKS
        for place, procedure in enumerate(self._procedures):
            callbacks[place].procedure = ctypes.cast(procedure, c_void_p)
        return 1

    def _ignore(self, *_):
        return 1

    def _register(self, connection, _data, previous_id, _):
        if previous_id:  # of another session
            return 0
        SM.SmsRegisterClientReply(c_void_p(connection), c_void_p(SM.SmsGenerateClientID(c_void_p(connection))))
        SM.SmsSaveYourself(c_void_p(connection), LOCAL, 0, NO_QUESTIONS, 0)
        self.client = connection
        return 1

    def _interact(self, connection, *_):
        self.questions += 1
        SM.SmsInteract(c_void_p(connection))
        return 1

    def _saved(self, connection, *_):
        if self._logs_out:
            self.has_saved = True
        else:
            SM.SmsSaveComplete(c_void_p(connection))
        return 1
