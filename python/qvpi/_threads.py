"""All cores: work split into strips of rows, which threads of concurrent.futures do while the interpreter is free."""
import os
from concurrent.futures import ThreadPoolExecutor
from functools import lru_cache

LEAST_BYTES = 1 << 20  # of an image in a strip of an operation of single pixels: less is done before a thread has begun

_state = {"threads": 1}


def set_threads(n):
    """How many threads functions use that are not told by threads=: 1 at first; None or 0 means one for each core."""
    _state["threads"] = _checked(n)


def get_threads():
    """How many threads functions use that are not told."""
    return _state["threads"]


def _checked(n):
    n = n or os.cpu_count()
    if not isinstance(n, int) or n < 1:
        raise ValueError("threads must be an integer of at least 1")
    return n


def count(threads):
    """The number of threads for an argument threads=."""
    return _state["threads"] if threads is None else _checked(threads)


@lru_cache(maxsize=None)
def _pool(n):
    return ThreadPoolExecutor(n, thread_name_prefix="qvpi")


def strips(height, n, least=16):
    """[(first, end)] of rows for n threads: as even as can be, none lower than `least` unless there is just one."""
    n = max(1, min(n, height // max(1, least)))
    edges = [height * i // n for i in range(n + 1)]
    return list(zip(edges, edges[1:]))


def run(work, parts):
    """Calls work(*part) for each part at once, and waits for all; the first failure is raised. Results in order."""
    if len(parts) == 1:
        return [work(*parts[0])]
    futures = [_pool(len(parts)).submit(work, *part) for part in parts]
    errors = [future.exception() for future in futures]
    for error in filter(None, errors):
        raise error
    return [future.result() for future in futures]
