"""What becomes of a status that is no success: an exception or a warning with the same facts."""
import warnings

from . import _call, raw


def _sentence(status):
    """(name, sentence) of a status, as ("qvpStatusSize", "...")."""
    name, _, sentence = raw.ffi.string(raw.lib.qvpGetStatusString(status)).decode().partition(": ")
    return name, sentence


class Error(ValueError):
    """A call was refused, and nothing was written.

    status: the number; name: its constant, as "qvpStatusStep"; sentence: what it means; function: who said so.
    """

    def __init__(self, status, function=""):
        self.status, self.function = status, function
        self.name, self.sentence = _sentence(status)
        super().__init__(f"{function}: {self.name}: {self.sentence}" if function else f"{self.name}: {self.sentence}")

    def __reduce__(self):
        return Error, (self.status, self.function)


class Warning(UserWarning):  # named like the one it is, qvpi.Warning
    """A call did its work, and has something to say about it. The attributes are those of Error."""

    def __init__(self, status, function=""):
        self.status, self.function = status, function
        self.name, self.sentence = _sentence(status)
        super().__init__(f"{function}: {self.name}: {self.sentence}")


def _on_status(status, function):
    if status < 0:
        raise Error(status, function)
    warnings.warn(Warning(status, function), stacklevel=4)


_call.set_on_status(_on_status)
