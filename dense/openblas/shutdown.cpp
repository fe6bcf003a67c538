// OpenBLAS drops its table of kernels when the process ends. Other threads may still be computing then, and would
// crash. The linker puts this in the place of that step where processes end with their threads running.
extern "C" {
void __wrap_gotoblas_dynamic_quit(void);

void __wrap_gotoblas_dynamic_quit(void) {}
}
