// Font caches that fontconfig (used by Qt's and cairo's text) keeps for the life of the process
// are not leaks of ours; the leak checker of the sanitizer build is told to ignore them.
extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig.so\n";
}
