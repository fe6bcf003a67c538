#include "tests/support/stack_skew.hpp"

#if defined(__i386__)
__asm__(R"(
        .globl  _call_with_stack, _call_with_stack_for_float
_call_with_stack:
_call_with_stack_for_float:
        pushl   %ebp
        movl    %esp, %ebp
        pushl   %esi
        pushl   %edi
        movl    12(%ebp), %esi
        movl    16(%ebp), %ecx
        leal    64(,%ecx,4), %eax
        subl    %eax, %esp
        andl    $-16, %esp
        addl    20(%ebp), %esp
        movl    %esp, %edi
        rep movsl
        call    *8(%ebp)
        leal    -8(%ebp), %esp
        popl    %edi
        popl    %esi
        popl    %ebp
        ret
)");
#endif
