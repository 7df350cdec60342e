// Tests fork while other threads run, and have the child start threads of its own.
// NOLINTNEXTLINE(bugprone-reserved-identifier,readability-identifier-naming): the name is the sanitizer's
extern "C" const char* __tsan_default_options() {
    return "die_after_fork=0";
}
