"""Others on the session bus, of the kind that nobody would wish for: each owns some names there and does with the calls
it gets what the test says, answering nothing at all included.
"""
import os

import dbus.lowlevel
from waiting import connection

_CALL, _HANDLED, _NOT_HANDLED = 1, dbus.lowlevel.HANDLER_RESULT_HANDLED, dbus.lowlevel.HANDLER_RESULT_NOT_YET_HANDLED


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
    """Never answers unless it is told how."""

    def __init__(self, *names, answer=None):
        self.calls = []  # the names of the methods that were called
        self.bus = connection(os.environ["DBUS_SESSION_BUS_ADDRESS"])
        self._answer = answer
        self.bus.add_message_filter(self._received)
        for name in names:
            self.bus.request_name(name)

    def signal(self, path, interface, name, *arguments, signature):
        message = dbus.lowlevel.SignalMessage(path, interface, name)
        message.append(*arguments, signature=signature)
        self.bus.send_message(message)

    def _received(self, _bus, message):
        if message.get_type() != _CALL:
            return _NOT_HANDLED
        self.calls.append(message.get_member())
        if self._answer:
            self.bus.send_message(self._answer(message))
        return _HANDLED
