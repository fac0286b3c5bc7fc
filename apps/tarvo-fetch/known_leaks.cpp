// Objects of OpenSSL's own are still there at some ends of the program. No stack of theirs names a caller of
// ours.
extern "C" const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions() {
    return "leak:libcrypto.so\n";
}
