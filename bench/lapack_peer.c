/* The published LAPACK routines over a stock OpenBLAS, as a DLL: a table of addresses draws them in. */
void sgetrf_(void);
void cgetrf_(void);
void spotrf_(void);
void sgeqrf_(void);
void cgeqrf_(void);
void ssyevr_(void);
void cheevr_(void);
void sgesdd_(void);
void sgeev_(void);

__declspec(dllexport) void (*const lapack_routines[])(void) = {sgetrf_, cgetrf_, spotrf_, sgeqrf_, cgeqrf_,
                                                               ssyevr_, cheevr_, sgesdd_, sgeev_};

void xerbla_(const char* name, const int* info);
void xerbla_(const char* name, const int* info) {
  (void)name;
  (void)info;
}
