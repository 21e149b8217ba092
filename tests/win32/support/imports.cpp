#include "tests/win32/support/imports.h"

#include <gtest/gtest.h>

#include <cstring>

namespace brelt::test {
namespace {

// The place in the DLL's import table where the loader stored a function's address.
void** FindImport(const char* function) {
  auto* base = reinterpret_cast<BYTE*>(GetModuleHandleA("brelt.dll"));
  const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const IMAGE_DATA_DIRECTORY& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  auto* module = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
  for (; module->Name != 0; ++module) {
    auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + module->OriginalFirstThunk);
    auto* address = reinterpret_cast<IMAGE_THUNK_DATA*>(base + module->FirstThunk);
    for (; name->u1.AddressOfData != 0; ++name, ++address) {
      if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) continue;
      const auto* import = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
      if (std::strcmp(reinterpret_cast<const char*>(import->Name), function) == 0) {
        return reinterpret_cast<void**>(&address->u1.Function);
      }
    }
  }
  return nullptr;
}

void Store(void** slot, void* function) {
  DWORD protection = 0;
  VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
  *slot = function;
  VirtualProtect(slot, sizeof *slot, protection, &protection);
}

}  // namespace

ReplacedImport::ReplacedImport(const char* function, void* replacement)
    : slot_(FindImport(function)), original_(slot_ != nullptr ? *slot_ : nullptr) {
  if (slot_ != nullptr) {
    Store(slot_, replacement);
  } else {
    ADD_FAILURE() << "brelt.dll doesn't import " << function;
  }
}

ReplacedImport::~ReplacedImport() {
  if (slot_ != nullptr) Store(slot_, original_);
}

}  // namespace brelt::test
