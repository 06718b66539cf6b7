// Stands for the core library of another version of Qt: it bears its name and nothing else.
extern "C" __attribute__((visibility("default"))) int orreryui_other_toolkit() { return 5; }
