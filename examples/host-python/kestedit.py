"""The job editor for hosts in Python, over its C interface.

    editor = Editor(Mode="New", JobDir="/home/ann/jobs", JobExtension=".job")
    editor.on_search_jobs(lambda: print("a new job"))
    editor.show()

Every failed call raises EditorError with the code and the text of the library.
"""

import ctypes
from ctypes import CFUNCTYPE, POINTER, c_char_p, c_int, c_int32, c_uint64, c_void_p

SET_NEW_VALUES = CFUNCTYPE(None, c_char_p, c_void_p)
SEARCH_JOBS = CFUNCTYPE(None, c_void_p)
RUN = CFUNCTYPE(None, c_uint64, c_void_p)
ASK = CFUNCTYPE(c_int32, c_char_p, c_char_p, c_int32, c_void_p)
CHOOSE = CFUNCTYPE(c_void_p, c_char_p, c_char_p, c_void_p)

_functions = {
    "kestEdit_create": [c_char_p, POINTER(c_uint64)],
    "kestEdit_release": [c_uint64],
    "kestEdit_setText": [c_uint64, c_char_p, c_char_p],
    "kestEdit_setInteger": [c_uint64, c_char_p, c_int32],
    "kestEdit_onSetNewValues": [c_uint64, SET_NEW_VALUES, c_void_p],
    "kestEdit_onSearchJobs": [c_uint64, SEARCH_JOBS, c_void_p],
    "kestEdit_setDriver": [c_uint64, RUN, ASK, c_void_p],
    "kestEdit_setChoosers": [c_uint64, CHOOSE, CHOOSE, RUN, c_void_p],
    "kestEdit_event": [c_uint64, c_char_p, c_char_p, c_char_p],
    "kestEdit_get": [c_uint64, c_char_p, POINTER(c_char_p)],
    "kestEdit_show": [c_uint64, c_int32],
}

_library = ctypes.CDLL("libkestEdit.so.1")
_library.kestEdit_lastError.restype = c_char_p
_library.kestEdit_version.restype = c_char_p
for _name, _arguments in _functions.items():
    getattr(_library, _name).argtypes = _arguments
    getattr(_library, _name).restype = c_int

VERSION = _library.kestEdit_version().decode()


class EditorError(Exception):
    def __init__(self, code, text):
        super().__init__(text)
        self.code = code


def _call(name, *arguments):
    code = getattr(_library, name)(*arguments)
    if code != 0:
        raise EditorError(code, _library.kestEdit_lastError().decode(errors="replace"))


def _bytes(text):
    return None if text is None else text.encode(errors="surrogateescape")


def _text(given):
    return given.decode(errors="surrogateescape")


def use_desktop():
    """Editors without a driver open the window from now on."""
    ctypes.CDLL("libkestEditDesktop.so.1").kestEdit_useDesktop()


class Editor:
    def __init__(self, **properties):
        self._kept = {}  # ctypes needs every callback alive for as long as the library may call it
        self._handle = c_uint64()
        _call("kestEdit_create", b"kestEdit.clsEdit", self._handle)
        for name, value in properties.items():
            self.set(name, value)

    def set(self, name, value):
        if isinstance(value, int):
            _call("kestEdit_setInteger", self._handle, _bytes(name), value)
        else:
            _call("kestEdit_setText", self._handle, _bytes(name), _bytes(value))

    def on_search_jobs(self, event):
        self._kept["search"] = SEARCH_JOBS(lambda user: event())
        _call("kestEdit_onSearchJobs", self._handle, self._kept["search"], None)

    def on_set_new_values(self, event):
        self._kept["values"] = SET_NEW_VALUES(lambda text, user: event(text.decode()))
        _call("kestEdit_onSetNewValues", self._handle, self._kept["values"], None)

    def drive(self, run, ask=None):
        """Shows the form by run(editor) in place of a window; ask(title, text, buttons) answers the message boxes."""
        self._kept["run"] = RUN(lambda editor, user: run(self))
        self._kept["ask"] = ASK(lambda title, text, buttons, user: ask(title.decode(), text.decode(), buttons)) \
            if ask else ASK()
        _call("kestEdit_setDriver", self._handle, self._kept["run"], self._kept["ask"], None)

    def choosers(self, folder=None, file=None, new_folder=None):
        """folder(title, start) and file(title, filter) give a path or None; new_folder(editor) drives that dialog."""
        self._kept["folder"] = self._chooser("folder path", folder)
        self._kept["file"] = self._chooser("file path", file)
        self._kept["new folder"] = RUN(lambda editor, user: new_folder(self)) if new_folder else RUN()
        _call("kestEdit_setChoosers", self._handle, self._kept["folder"], self._kept["file"],
              self._kept["new folder"], None)

    def _chooser(self, place, choose):
        def answer(title, start, user):
            path = choose(_text(title), _text(start))
            # The library reads the path when this has returned.
            self._kept[place] = None if path is None else ctypes.create_string_buffer(_bytes(path))
            return None if path is None else ctypes.addressof(self._kept[place])
        return CHOOSE(answer) if choose else CHOOSE()

    def get(self, name):
        """A property such as "dxName.EditValue", as scripts print it."""
        text = c_char_p()
        _call("kestEdit_get", self._handle, _bytes(name), text)
        return _text(text.value)

    def event(self, event, control=None, text=None):
        _call("kestEdit_event", self._handle, _bytes(event), _bytes(control), _bytes(text))

    def show(self, view=4):
        _call("kestEdit_show", self._handle, view)

    def release(self):
        _call("kestEdit_release", self._handle)
