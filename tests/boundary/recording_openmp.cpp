// An OpenMP run-time library for tests: remembers the block time that it was given last.
#if defined(_WIN32)
#define RECORDING_EXPORT __declspec(dllexport)
#else
#define RECORDING_EXPORT
#endif

extern "C" {
RECORDING_EXPORT void kmp_set_blocktime(int milliseconds);
extern RECORDING_EXPORT int recorded_block_time;

int recorded_block_time = -12345;
void kmp_set_blocktime(int milliseconds) { recorded_block_time = milliseconds; }
}
