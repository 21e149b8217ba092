#include "rc/record.h"

#include <new>

#include "rc/host.h"

namespace brelt::rc {

void ResourceRecord::Clear() noexcept {
  x = y = width = height = fontSize = 0;
  style = exStyle = 0;
  text.Clear();
  className.Clear();
  menuName.Clear();
  fontName.Clear();
  keyword.Clear();
  name.Clear();
}

bool AllocRecordArray(RecordTable& table) noexcept {
  for (ResourceRecord*& record : table) record = nullptr;
  for (ResourceRecord*& record : table) {
    void* memory = host::AllocateZeroed(sizeof(ResourceRecord));
    if (memory == nullptr) return false;
    record = new (memory) ResourceRecord;
  }
  return true;
}

void FreeRecordArray(RecordTable& table) noexcept {
  for (ResourceRecord*& record : table) {
    if (record != nullptr) host::Release(record);
    record = nullptr;
  }
}

void ClearRecords(RecordTable& table) noexcept {
  table[0]->Clear();
  for (ResourceRecord* record : table) {
    if (!record->keyword.IsEmpty() || !record->name.IsEmpty()) record->Clear();
  }
}

}  // namespace brelt::rc
