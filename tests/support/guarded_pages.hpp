// Memory that ends, or begins, at a page which cannot be accessed: what reads or writes one byte outside faults.
#pragma once

#include "tests/support/standard.hpp"
#include "tests/support/system.hpp"

namespace quorin::test {

enum class Edge { kFront, kBack };

// An arena between two inaccessible pages. place() puts an array of its own at one of them; what stays free next to the
// array's other end is filled with marks.
class GuardedPages {
 public:
  // Room for arrays of up to `bytes`.
  explicit GuardedPages(std::size_t bytes) : inside_((bytes + kMarks + kPage - 1) / kPage * kPage) {
    const std::size_t whole = inside_ + 2 * kPage;
#if defined(_WIN32)
    pages_ = static_cast<unsigned char*>(VirtualAlloc(nullptr, whole, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    if (pages_ == nullptr) std::abort();
    DWORD before = 0;
    VirtualProtect(pages_, kPage, PAGE_NOACCESS, &before);
    VirtualProtect(pages_ + kPage + inside_, kPage, PAGE_NOACCESS, &before);
#else
    void* const pages = mmap(nullptr, whole, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED) std::abort();
    pages_ = static_cast<unsigned char*>(pages);
    mprotect(pages_, kPage, PROT_NONE);
    mprotect(pages_ + kPage + inside_, kPage, PROT_NONE);
#endif
  }
  GuardedPages(GuardedPages&& other) noexcept
      : inside_(other.inside_),
        pages_(std::exchange(other.pages_, nullptr)),
        size_(other.size_),
        array_(other.array_),
        marks_(other.marks_) {}
  GuardedPages& operator=(GuardedPages&&) = delete;
  ~GuardedPages() {
    if (pages_ == nullptr) return;
#if defined(_WIN32)
    VirtualFree(pages_, 0, MEM_RELEASE);
#else
    munmap(pages_, inside_ + 2 * kPage);
#endif
  }

  void* place(std::size_t bytes, Edge edge) {
    if (bytes + kMarks > inside_) std::abort();
    unsigned char* const first = pages_ + kPage;
    size_ = bytes;
    array_ = edge == Edge::kFront ? first : first + inside_ - bytes;
    marks_ = edge == Edge::kFront ? array_ + bytes : array_ - kMarks;
    std::memset(marks_, kMark, kMarks);
    return array_;
  }
  void* data() const { return array_; }
  std::span<const unsigned char> bytes() const { return {array_, size_}; }

  // Whether the marks are as place() left them.
  bool intact() const {
    for (std::size_t i = 0; i < kMarks; ++i) {
      if (marks_[i] != kMark) return false;
    }
    return true;
  }

 private:
  static constexpr std::size_t kPage = 4096;  // on all targets
  static constexpr std::size_t kMarks = 64;
  static constexpr unsigned char kMark = 0xa5;
  std::size_t inside_;
  unsigned char* pages_ = nullptr;
  std::size_t size_ = 0;
  unsigned char *array_ = nullptr, *marks_ = nullptr;
};

// What the program is doing, told when it faults. A fault ends the program with status 1.
class FaultReport {
 public:
  static void begin(const char* text) {
    std::snprintf(text_, sizeof text_, "%s", text);
    static const bool installed = install();
    static_cast<void>(installed);
  }

 private:
  static void tell() noexcept {
    std::fputs("Access violation in: ", stderr);
    std::fputs(text_, stderr);
    std::fputs("\n", stderr);
    std::fflush(stderr);
  }
#if defined(_WIN32)
  static LONG CALLBACK report(EXCEPTION_POINTERS* exception) {
    if (exception->ExceptionRecord->ExceptionCode != EXCEPTION_ACCESS_VIOLATION) return EXCEPTION_CONTINUE_SEARCH;
    tell();
    TerminateProcess(GetCurrentProcess(), 1);
    return EXCEPTION_CONTINUE_SEARCH;
  }
  static bool install() { return AddVectoredExceptionHandler(1, &report) != nullptr; }
#else
  static void report(int) {
    tell();
    _exit(1);
  }
  static bool install() {
    std::signal(SIGBUS, report);
    return std::signal(SIGSEGV, report) != SIG_ERR;
  }
#endif

  static inline char text_[200] = "";
};

}  // namespace quorin::test
