// What the start-up code of GCC calls when a DLL comes and goes, so that its exceptions can be unwound.
// Nothing here is unwound, and the registration would take an index of thread-local storage that is never
// given back: a program that loads and frees the DLL a thousand times would have none left.

extern "C" {

// In place of __register_frame_info and __deregister_frame_info; see cmake/dll.cmake.
void RegisterNoUnwindTable(const void* table, void* object) noexcept __asm__("___wrap___register_frame_info");
void* DeregisterNoUnwindTable(const void* table) noexcept __asm__("___wrap___deregister_frame_info");

void RegisterNoUnwindTable(const void*, void*) noexcept {}
void* DeregisterNoUnwindTable(const void*) noexcept { return nullptr; }
}
