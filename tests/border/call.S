/* void border_call(void): calls border_target with every register as border_before says, the stack pointer included,
   and writes to border_after what it finds when the call has returned. Nothing but the return is trusted. */
        .set    rsp_at, 8 * 4
        .set    flags_at, 128
        .set    mxcsr_at, 136
        .set    x87_at, 140
        .set    vectors_at, 176

        .macro  each_general do
        .irp    register, rax, rcx, rdx, rbx, rsp, rbp, rsi, rdi, r8, r9, r10, r11, r12, r13, r14, r15
        \do     \register
        .endr
        .endm
        .macro  each_vector do
        .irp    number, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
        \do     \number
        .endr
        .endm

        /* All but the stack pointer, which comes last on the way in and first on the way out. */
        .macro  get_general register
        .ifnc   \register, rsp
        mov     border_before+at(%rip), %\register
        .endif
        .set    at, at + 8
        .endm
        .macro  put_general register
        mov     %\register, border_after+at(%rip)
        .set    at, at + 8
        .endm
        .macro  get_ymm number
        vmovdqu border_before+vectors_at+32*\number(%rip), %ymm\number
        .endm
        .macro  get_xmm number
        movdqu  border_before+vectors_at+32*\number(%rip), %xmm\number
        .endm
        .macro  put_xmm number
        movdqu  %xmm\number, border_after+vectors_at+32*\number(%rip)
        .endm

        .text
        .globl  border_call
        .type   border_call, @function
border_call:
        .irp    register, rbx, rbp, r12, r13, r14, r15
        push    %\register
        .endr
        stmxcsr host_mxcsr(%rip)
        fnstcw  host_x87(%rip)
        mov     %rsp, host_rsp(%rip)
        cmpb    $0, border_has_avx(%rip)
        je      1f
        each_vector get_ymm
        jmp     2f
1:      each_vector get_xmm
2:      fninit
        ldmxcsr border_before+mxcsr_at(%rip)
        fldcw   border_before+x87_at(%rip)
        .set    at, 0
        each_general get_general
        mov     border_before+rsp_at(%rip), %rsp

        call    *border_target(%rip)

        .set    at, 0
        each_general put_general
        mov     host_rsp(%rip), %rsp
        pushf
        pop     border_after+flags_at(%rip)
        cld
        stmxcsr border_after+mxcsr_at(%rip)
        fnstenv border_after+x87_at(%rip)
        fninit
        fldcw   host_x87(%rip)
        each_vector put_xmm
        cmpb    $0, border_has_avx(%rip)
        je      3f
        vzeroupper
3:      ldmxcsr host_mxcsr(%rip)
        .irp    register, r15, r14, r13, r12, rbp, rbx
        pop     %\register
        .endr
        ret
        .size   border_call, . - border_call

        .local  host_rsp, host_mxcsr, host_x87
        .comm   host_rsp, 8, 8
        .comm   host_mxcsr, 4, 4
        .comm   host_x87, 2, 2
        .section .note.GNU-stack, "", @progbits
