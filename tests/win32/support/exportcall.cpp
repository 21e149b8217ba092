#include "tests/win32/support/exportcall.h"

// int CallWithWords(void* function, const uint32_t* words, int count, int shiftWords, uint32_t* result)
// The result is by how many bytes the stack pointer has risen over the call.
extern "C" int CallWithWords(void* function, const std::uint32_t* words, int count, int shiftWords,
                             std::uint32_t* result);
__asm__(R"(
  .text
  .globl _CallWithWords
_CallWithWords:
  pushl %ebp
  movl %esp, %ebp
  pushl %ebx
  pushl %esi
  movl 12(%ebp), %esi
  movl 16(%ebp), %ecx
  andl $-16, %esp
  movl 20(%ebp), %edx
  shll $2, %edx
  subl %edx, %esp
1:
  testl %ecx, %ecx
  jz 2f
  pushl -4(%esi,%ecx,4)
  decl %ecx
  jmp 1b
2:
  movl %esp, %ebx
  call *8(%ebp)
  movl 24(%ebp), %ecx
  movl %eax, (%ecx)
  movl %esp, %eax
  subl %ebx, %eax
  leal -8(%ebp), %esp
  popl %esi
  popl %ebx
  popl %ebp
  ret
)");

namespace brelt::test {

CallOutcome CallExport(void* function, std::span<const std::uint32_t> words, int shift) {
  CallOutcome outcome = {};
  outcome.poppedBytes =
      CallWithWords(function, words.data(), static_cast<int>(words.size()), shift, &outcome.result);
  return outcome;
}

}  // namespace brelt::test
