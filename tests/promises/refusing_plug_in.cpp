// A plug-in with the right entry that can't show a window.
extern "C" __attribute__((visibility("default"))) void* orreryui_front_end(int) { return nullptr; }
