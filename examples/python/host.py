#!/usr/bin/env python3
"""host.py FOLDER: asks for one of the data files that are listed in the folder, the first one being
chosen so far, and says what the user decided. Ends with 1 if the user gave up, with 2 if it is
called wrongly.

If the system's loader doesn't know the library, its folder has to stand in LD_LIBRARY_PATH.
"""

import ctypes
import os
import sys

GIVEN_UP, OUT_OF_MEMORY = 1, 2

library = ctypes.CDLL("liborreryui-c.so.1")
library.orreryui_free.argtypes = [ctypes.c_void_p]
library.orreryui_free.restype = None


def ask(operation, *arguments):
    """The result of an operation that has one, or None if the user gave up."""
    passed = [os.fsencode(one) if isinstance(one, str) else one for one in arguments]
    result = ctypes.c_void_p()
    status = getattr(library, "orreryui_" + operation)(*passed, ctypes.byref(result))
    if status < 0:
        raise ValueError(f"argument {-status} can't be passed: code page 932 lacks it")
    if status == OUT_OF_MEMORY:
        raise MemoryError
    if status == GIVEN_UP:
        return None
    try:
        return ctypes.string_at(result).decode()
    finally:
        library.orreryui_free(result)


def main():
    if len(sys.argv) != 2:
        return 2
    try:
        result = ask("OnDataSourceSet", 1, "on", sys.argv[1] + "/")
    except ValueError as error:
        print(error, file=sys.stderr)
        return 2
    if result is None:
        print("The user gave up, or no window could be shown.")
        return 1
    # The name may hold further bars.
    entry, common_area, name = result.split("|", 2)
    print(f"Entry {entry}, {name}; common area: {common_area}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
