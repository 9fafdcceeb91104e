"""The few calls of libX11 that looking at a screen takes."""

import ctypes
import ctypes.util

lib = ctypes.CDLL("libX11.so.6")

Window = ctypes.c_ulong
Atom = ctypes.c_ulong
Pointer = ctypes.c_void_p

XA_ATOM = 4
XA_CARDINAL = 6


class Attributes(ctypes.Structure):
    _fields_ = [
        ("x", ctypes.c_int), ("y", ctypes.c_int), ("width", ctypes.c_int), ("height", ctypes.c_int),
        ("border_width", ctypes.c_int), ("depth", ctypes.c_int), ("visual", Pointer), ("root", Window),
        ("window_class", ctypes.c_int), ("bit_gravity", ctypes.c_int), ("win_gravity", ctypes.c_int),
        ("backing_store", ctypes.c_int), ("backing_planes", ctypes.c_ulong), ("backing_pixel", ctypes.c_ulong),
        ("save_under", ctypes.c_int), ("colormap", ctypes.c_ulong), ("map_installed", ctypes.c_int),
        ("map_state", ctypes.c_int), ("all_event_masks", ctypes.c_long), ("your_event_mask", ctypes.c_long),
        ("do_not_propagate_mask", ctypes.c_long), ("override_redirect", ctypes.c_int), ("screen", Pointer),
    ]


class ClassHint(ctypes.Structure):
    _fields_ = [("name", Pointer), ("window_class", Pointer)]


class Image(ctypes.Structure):
    """The head of an XImage, as far as its pixels are read."""

    _fields_ = [
        ("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int), ("format", ctypes.c_int),
        ("data", Pointer), ("byte_order", ctypes.c_int), ("bitmap_unit", ctypes.c_int),
        ("bitmap_bit_order", ctypes.c_int), ("bitmap_pad", ctypes.c_int), ("depth", ctypes.c_int),
        ("bytes_per_line", ctypes.c_int), ("bits_per_pixel", ctypes.c_int),
    ]


class ClientMessage(ctypes.Structure):
    _fields_ = [
        ("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int), ("display", Pointer),
        ("window", Window), ("message_type", Atom), ("format", ctypes.c_int), ("data", ctypes.c_long * 5),
        ("room_of_the_union", ctypes.c_long * 24),
    ]


def declare(name, result, *arguments):
    function = getattr(lib, name)
    function.restype = result
    function.argtypes = arguments
    return function


int_p = ctypes.POINTER(ctypes.c_int)
window_p = ctypes.POINTER(Window)
ulong_p = ctypes.POINTER(ctypes.c_ulong)

XOpenDisplay = declare("XOpenDisplay", Pointer, ctypes.c_char_p)
XCloseDisplay = declare("XCloseDisplay", ctypes.c_int, Pointer)
XDefaultRootWindow = declare("XDefaultRootWindow", Window, Pointer)
XQueryTree = declare("XQueryTree", ctypes.c_int, Pointer, Window, window_p, window_p, ctypes.POINTER(window_p),
                     ctypes.POINTER(ctypes.c_uint))
XGetWindowAttributes = declare("XGetWindowAttributes", ctypes.c_int, Pointer, Window, ctypes.POINTER(Attributes))
XTranslateCoordinates = declare("XTranslateCoordinates", ctypes.c_int, Pointer, Window, Window, ctypes.c_int,
                                ctypes.c_int, int_p, int_p, window_p)
XGetClassHint = declare("XGetClassHint", ctypes.c_int, Pointer, Window, ctypes.POINTER(ClassHint))
XInternAtom = declare("XInternAtom", Atom, Pointer, ctypes.c_char_p, ctypes.c_int)
XGetWindowProperty = declare("XGetWindowProperty", ctypes.c_int, Pointer, Window, Atom, ctypes.c_long, ctypes.c_long,
                             ctypes.c_int, Atom, ctypes.POINTER(Atom), int_p, ulong_p, ulong_p,
                             ctypes.POINTER(Pointer))
XGetImage = declare("XGetImage", ctypes.POINTER(Image), Pointer, Window, ctypes.c_int, ctypes.c_int, ctypes.c_uint,
                    ctypes.c_uint, ctypes.c_ulong, ctypes.c_int)
XDestroyImage = declare("XDestroyImage", ctypes.c_int, ctypes.POINTER(Image))
XSelectInput = declare("XSelectInput", ctypes.c_int, Pointer, Window, ctypes.c_long)
XSendEvent = declare("XSendEvent", ctypes.c_int, Pointer, Window, ctypes.c_int, ctypes.c_long, Pointer)
XCreateSimpleWindow = declare("XCreateSimpleWindow", Window, Pointer, Window, ctypes.c_int, ctypes.c_int, ctypes.c_uint,
                              ctypes.c_uint, ctypes.c_uint, ctypes.c_ulong, ctypes.c_ulong)
XChangeProperty = declare("XChangeProperty", ctypes.c_int, Pointer, Window, Atom, Atom, ctypes.c_int, ctypes.c_int,
                          Pointer, ctypes.c_int)
XSetSelectionOwner = declare("XSetSelectionOwner", ctypes.c_int, Pointer, Atom, Window, ctypes.c_ulong)
XMapWindow = declare("XMapWindow", ctypes.c_int, Pointer, Window)
XFree = declare("XFree", ctypes.c_int, Pointer)
XFlush = declare("XFlush", ctypes.c_int, Pointer)

# A window may go between two calls; that is no reason to end.
_ErrorHandler = ctypes.CFUNCTYPE(ctypes.c_int, Pointer, Pointer)
_swallow = _ErrorHandler(lambda display, event: 0)
lib.XSetErrorHandler(_swallow)
