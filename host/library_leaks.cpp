#ifdef __SANITIZE_ADDRESS__
// The font library never frees all that it made of its configuration, nor the desktop's bus library its
// names; only that is left out, silently.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig.so\nleak:libdbus-1.so";
}
extern "C" const char* __lsan_default_options();
extern "C" const char* __lsan_default_options() {
    return "print_suppressions=0";
}
#endif
