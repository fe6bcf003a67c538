/* The published LAPACK routines over a stock OpenBLAS, as a DLL: a table of addresses draws them in. */
void sgetrf_(void);
void cgetrf_(void);
void spotrf_(void);
void cpotrf_(void);
void sgeqrf_(void);
void cgeqrf_(void);
void sgetri_(void);
void cgetri_(void);
void spotri_(void);
void cpotri_(void);
void strtri_(void);
void ctrtri_(void);
void ssytrf_(void);
void csytrf_(void);
void chetrf_(void);
void ssyevr_(void);
void cheevr_(void);
void sgesdd_(void);
void sgeev_(void);

__declspec(dllexport) void (*const lapack_routines[])(void) = {
    sgetrf_, cgetrf_, spotrf_, cpotrf_, sgeqrf_, cgeqrf_, sgetri_, cgetri_, spotri_, cpotri_,
    strtri_, ctrtri_, ssytrf_, csytrf_, chetrf_, ssyevr_, cheevr_, sgesdd_, sgeev_};

void xerbla_(const char* name, const int* info);
void xerbla_(const char* name, const int* info) {
  (void)name;
  (void)info;
}
