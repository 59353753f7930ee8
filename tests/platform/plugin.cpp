// A library for the loading tests.
extern "C" __attribute__((visibility("default"))) int tovuTestPluginAnswer() { return 42; }
