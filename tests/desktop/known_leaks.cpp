// Read by the leak check of a sanitized build.

// fontconfig finds what it keeps by offsets, which the check cannot follow.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }  // NOLINT: the check's name
// Not a word where it passes.
extern "C" const char* __lsan_default_options() { return "print_suppressions=0"; }  // NOLINT: the check's name
