/* A window of plain X11 in which any key asks about a range of the map. Its title tells the answer.
 *
 *   cc host.c -o host $(pkg-config --cflags --libs x11 orreryui-c)
 */
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <orreryui/orreryui_c.h>
#include <stdio.h>
#include <unistd.h>

/* The dialog stands before the active window if that says that it belongs to this process. */
static Window make_window(Display* display, Atom* close_box) {
  const long process = getpid();
  const Window window = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 480, 320, 0,
                                            0, WhitePixel(display, DefaultScreen(display)));
  XChangeProperty(display, window, XInternAtom(display, "_NET_WM_PID", False), XA_CARDINAL, 32,
                  PropModeReplace, (const unsigned char*)&process, 1);
  XSetWMProtocols(display, window, close_box, 1);
  XSelectInput(display, window, KeyPressMask);
  XStoreName(display, window, "Host");
  XMapWindow(display, window);
  return window;
}

/* The window isn't served while the dialog is open. What was typed into it meanwhile is dropped. */
static void ask(Display* display, Window window) {
  static int count = 0;
  char title[40];
  XEvent typed;
  const int status = orreryui_OnRengeConfirm("139.5000", "35.4000", "139.6000", "35.3000");
  XSync(display, False);
  while (XCheckWindowEvent(display, window, KeyPressMask, &typed)) continue;

  sprintf(title, "Answer %d: %s", ++count, status == ORRERYUI_OK ? "enlarge" : "drop");
  XStoreName(display, window, title);
}

int main(void) {
  Display* const display = XOpenDisplay(NULL);
  Atom close_box;
  Window window;
  XEvent event;
  if (!display) {
    fputs("There is no display.\n", stderr);
    return 1;
  }
  close_box = XInternAtom(display, "WM_DELETE_WINDOW", False);
  window = make_window(display, &close_box);
  do {
    XNextEvent(display, &event);
    if (event.type == KeyPress) ask(display, window);
  } while (event.type != ClientMessage || (Atom)event.xclient.data.l[0] != close_box);
  XCloseDisplay(display);
  return 0;
}
