/* Functions that each break one rule of the border. Those of one vector return it otherwise. */
        .text
        .macro  function name
        .globl  broken_\name
        .type   broken_\name, @function
broken_\name:
        .endm

        .irp    register, rbx, rbp, r12, r13, r14, r15
        function changes_\register
        not     %\register
        ret
        .endr

        function leaves_the_stack_pointer
        ret     $16

        function sets_the_direction_flag
        std
        ret

        function changes_mxcsr
        stmxcsr -8(%rsp)
        xorl    $0x8000, -8(%rsp)
        ldmxcsr -8(%rsp)
        ret

        function changes_the_x87_word
        fnstcw  -8(%rsp)
        xorw    $0x400, -8(%rsp)
        fldcw   -8(%rsp)
        ret

        function leaves_an_x87_register
        fldz
        ret

        function turns_the_x87_stack
        fincstp
        ret

        /* Of vectors with a lane that is not theirs, or in a wider register. */
        function adds_the_last_lane
        pshufd  $0xFF, %xmm0, %xmm1
        paddd   %xmm1, %xmm0
        ret

        function multiplies_all_of_xmm0
        movaps  %xmm0, %xmm1
        mulps   %xmm1, %xmm1
        ret

        function multiplies_all_of_ymm0
        vmulps  %ymm0, %ymm0, %ymm1
        ret

        function adds_a_register_never_written
        paddd   %xmm9, %xmm0
        ret

        function trusts_the_upper_half_of_an_int
        shr     $32, %rdi
        movd    %edi, %xmm0
        ret

        /* Of a float8, returned through the hidden pointer. */
        .macro  copy
        movups  8(%rsp), %xmm0
        movups  24(%rsp), %xmm1
        movups  %xmm0, (%rdi)
        movups  %xmm1, 16(%rdi)
        .endm
        function forgets_the_hidden_pointer
        copy
        xor     %eax, %eax
        ret

        function writes_beyond_its_result
        copy
        movb    $0, 32(%rdi)
        mov     %rdi, %rax
        ret

        function writes_before_its_result
        copy
        movb    $0, -1(%rdi)
        mov     %rdi, %rax
        ret

        function reads_beyond_its_arguments
        copy
        mov     40(%rsp), %al
        mov     %rdi, %rax
        ret

        function writes_beyond_its_arguments
        copy
        movb    $0, 40(%rsp)
        mov     %rdi, %rax
        ret

        function wants_more_alignment_of_the_stack
        copy
        lea     8(%rsp), %rax
        test    $31, %al
        jz      1f
        ud2
1:      mov     %rdi, %rax
        ret

        function uses_much_stack
        copy
        movb    $0, -3500(%rsp)
        mov     %rdi, %rax
        ret

        /* Of a float4 with a second result. */
        function wants_an_aligned_second_result
        movaps  %xmm0, (%rdi)
        ret

        function writes_beyond_its_second_result
        movups  %xmm0, (%rdi)
        movb    $0, 16(%rdi)
        ret

        function writes_before_its_second_result
        movups  %xmm0, (%rdi)
        movb    $0, -1(%rdi)
        ret

        function reads_beyond_its_second_result
        movups  %xmm0, (%rdi)
        mov     16(%rdi), %al
        ret

        function reads_before_its_second_result
        movups  %xmm0, (%rdi)
        mov     -1(%rdi), %al
        ret

        function forgets_a_lane_of_its_second_result
        movlps  %xmm0, (%rdi)
        ret
        .section .note.GNU-stack, "", @progbits
