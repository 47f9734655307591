"""qvpIP for numpy: exact image processing at the library's speed."""
from . import arithmetic, compositing, filters, layout, statistics, values
from ._errors import Error, Warning
from ._threads import get_threads, set_threads

_MODULES = (arithmetic, compositing, filters, layout, statistics, values)
__all__ = ["Error", "Warning", "get_threads", "info", "set_threads"]
for _module in _MODULES:
    __all__ += _module.__all__
    globals().update({_name: getattr(_module, _name) for _name in _module.__all__})
