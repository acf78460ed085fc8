"""Others on the session bus, of the kind that nobody would wish for: each owns some names there and does with the calls
it gets what the test says, answering nothing at all included.
"""
import os
import socket
import tempfile
from contextlib import contextmanager

import dbus
import dbus.bus
import dbus.lowlevel
from dbus.mainloop.glib import DBusGMainLoop

_CALL, _HANDLED, _NOT_HANDLED = 1, dbus.lowlevel.HANDLER_RESULT_HANDLED, dbus.lowlevel.HANDLER_RESULT_NOT_YET_HANDLED
_LOOP = DBusGMainLoop()  # that of `waiting`


def silence(_call):
    """The answer of one who never answers."""


def refusal(call):
    return dbus.lowlevel.ErrorMessage(call, "org.example.Error.Refused", "no")


def reply(*arguments, signature):
    """An answer that is these values, whoever asks for what."""
    def answer(call):
        message = dbus.lowlevel.MethodReturnMessage(call)
        message.append(*arguments, signature=signature)
        return message
    return answer


class Neighbour:
    def __init__(self, *names, answer=silence):
        self.calls = []  # the names of the methods that were called
        self._bus = dbus.bus.BusConnection(os.environ["DBUS_SESSION_BUS_ADDRESS"], mainloop=_LOOP)
        self._bus.set_exit_on_disconnect(False)
        self._answer = answer
        self._bus.add_message_filter(self._received)
        for name in names:
            got = self._bus.request_name(name, dbus.bus.NAME_FLAG_DO_NOT_QUEUE)
            assert got == dbus.bus.REQUEST_NAME_REPLY_PRIMARY_OWNER, f"somebody else has the name {name}"

    def signal(self, path, interface, name, *arguments, signature):
        self._send(dbus.lowlevel.SignalMessage(path, interface, name), arguments, signature)

    def call(self, name, path, interface, method, *arguments, signature):
        """Sends a call and does not wait for what comes of it."""
        self._send(dbus.lowlevel.MethodCallMessage(name, path, interface, method), arguments, signature)

    def _send(self, message, arguments, signature):
        message.append(*arguments, signature=signature)
        self._bus.send_message(message)

    def ask(self, name, path, interface, method, *arguments, signature):
        """Sends a call and returns what is answered; raises where that is an error."""
        return self._bus.call_blocking(name, path, interface, method, signature, arguments)

    def sees(self, name):
        """Whether somebody owns a name."""
        return self._bus.name_has_owner(name)

    def end(self):
        self._bus.close()

    def _received(self, _bus, message):
        if message.get_type() != _CALL:
            return _NOT_HANDLED
        self.calls.append(message.get_member())
        answer = self._answer(message)
        if answer is not None:
            self._bus.send_message(answer)
        return _HANDLED


@contextmanager
def silentBus():
    """A socket that takes connections and never says a word; its address."""
    with tempfile.TemporaryDirectory(prefix="brimle-bus-") as folder, socket.socket(socket.AF_UNIX) as bus:
        bus.bind(f"{folder}/bus")
        bus.listen()
        yield f"unix:path={folder}/bus"
