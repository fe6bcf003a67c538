// The k-th allocation of a call fails, alone or with all after it, for k = 1, 2, ... until the call no longer notices.
// Each time it either computes the right result or reports code 1000 and leaves the output untouched.
#include "tests/support/capture_output.hpp"
#include "tests/support/exact_product.hpp"
#include "tests/support/failing_host.hpp"
#include "tests/support/test.hpp"

namespace quorin::test {
namespace {

struct Operands {
  std::int32_t n = 150, one = 1, two = 2;
  float alpha[2] = {2, 0}, beta[2] = {3, 0};
  std::vector<float> a = whole_numbers(size(), 5), b = whole_numbers(size(), 6);

  // A unit triangular matrix of whole numbers whose inverse, I - N with N^2 = 0, is one too: solutions are exact.
  Operands() {
    for (std::size_t i = 0; i < side(); ++i) {
      triangle[i + i * side()] = 1;
      if (i < side() / 2) triangle[i + (i + side() / 2) * side()] = 1;
    }
  }
  std::size_t side() const { return static_cast<std::size_t>(n); }
  std::size_t size() const { return 2 * side() * side(); }

  std::vector<float> triangle = std::vector<float>(size());
};

struct Case {
  const char* name;
  const char* reported;  // null: it needs no memory, so nothing can be missing
  std::function<void(const quorin_library&, Operands&, float* c)> call;
};

template <class T>
quorin_complex* as_complex(T* numbers) {
  return reinterpret_cast<quorin_complex*>(numbers);
}

const std::vector<Case>& cases() {
  static const std::vector<Case> all = {
      {"sgemm", "SGEMM",
       [](const quorin_library& m, Operands& o, float* c) {
         m.sgemm("N", "T", &o.n, &o.n, &o.n, o.alpha, o.a.data(), &o.n, o.b.data(), &o.n, o.beta, c, &o.n);
       }},
      {"cgemm", "CGEMM",
       [](const quorin_library& m, Operands& o, float* c) {
         m.cgemm("C", "N", &o.n, &o.n, &o.n, as_complex(o.alpha), as_complex(o.a.data()), &o.n, as_complex(o.b.data()),
                 &o.n, as_complex(o.beta), as_complex(c), &o.n);
       }},
      {"ssyrk", "SSYRK",
       [](const quorin_library& m, Operands& o, float* c) {
         m.ssyrk("U", "N", &o.n, &o.n, o.alpha, o.a.data(), &o.n, o.beta, c, &o.n);
       }},
      {"ssymm", "SSYMM",
       [](const quorin_library& m, Operands& o, float* c) {
         m.ssymm("L", "U", &o.n, &o.n, o.alpha, o.a.data(), &o.n, o.b.data(), &o.n, o.beta, c, &o.n);
       }},
      {"strsm", "STRSM",
       [](const quorin_library& m, Operands& o, float* c) {
         m.strsm("L", "U", "N", "U", &o.n, &o.n, o.alpha, o.triangle.data(), &o.n, c, &o.n);
       }},
      {"strtrs", "STRTRS",
       [](const quorin_library& m, Operands& o, float* c) {
         std::int32_t info = 0;
         m.strtrs("U", "N", "U", &o.n, &o.n, o.triangle.data(), &o.n, c, &o.n, &info);
         EXPECT_TRUE(info == 0 || info == -1000) << info;
       }},
      {"cher2k", "CHER2K",
       [](const quorin_library& m, Operands& o, float* c) {
         m.cher2k("L", "N", &o.n, &o.n, as_complex(o.alpha), as_complex(o.a.data()), &o.n, as_complex(o.b.data()), &o.n,
                  o.beta, as_complex(c), &o.n);
       }},
      // Level 2 needs no memory, whatever the strides.
      {"sgemv", nullptr,
       [](const quorin_library& m, Operands& o, float* c) {
         m.sgemv("T", &o.n, &o.n, o.alpha, o.a.data(), &o.n, o.b.data(), &o.two, o.beta, c, &o.one);
       }},
      {"cgerc", nullptr,
       [](const quorin_library& m, Operands& o, float* c) {
         m.cgerc(&o.n, &o.n, as_complex(o.alpha), as_complex(o.a.data()), &o.two, as_complex(o.b.data()), &o.one,
                 as_complex(c), &o.n);
       }},
      {"ssymv", nullptr,
       [](const quorin_library& m, Operands& o, float* c) {
         m.ssymv("L", &o.n, o.alpha, o.a.data(), &o.n, o.b.data(), &o.two, o.beta, c, &o.one);
       }},
      {"strsv", nullptr,
       [](const quorin_library& m, Operands& o, float* c) {
         m.strsv("U", "N", "U", &o.n, o.triangle.data(), &o.n, c, &o.two);
       }},
  };
  return all;
}

// One host with the counting allocator under the library. Whole numbers make every result exact, so that the result of
// a call that lacked nothing is the result.
class Campaign {
 public:
  Campaign() {
    host_->sMKL_Set_Dynamic(0);
    host_->sMKL_Set_Num_Threads(4);
  }

  void run(const Case& c, int failures) {
    SCOPED_TRACE(std::string(c.name) + ", failing " + std::to_string(failures));
    const std::vector<float> before = whole_numbers(operands_.size(), 7);
    std::vector<float> expected = before;
    c.call(host_.product(), operands_, expected.data());
    ASSERT_NE(expected, before);

    constexpr int kMostAllocations = 100;
    int k = 1, reports = 0;
    for (bool failed = true; failed && k < kMostAllocations; ++k) {
      free_buffers();
      EXPECT_EQ(host_.live_blocks(), 0);
      std::vector<float> computed = before;
      std::string text;
      failed = host_.run_failing(
          k, failures, [&] { text = captured([&] { c.call(host_.product(), operands_, computed.data()); }); });
      if (text.empty()) {
        EXPECT_EQ(computed, expected) << "allocation " << k;
      } else {
        ++reports;
        ASSERT_NE(c.reported, nullptr) << text;
        EXPECT_EQ(text, std::string("\nIntel MKL INTERNAL ERROR: Insufficient workspace available in function ") +
                            c.reported + ".\n");
        EXPECT_EQ(computed, before) << "allocation " << k;
      }
    }
    EXPECT_LT(k, kMostAllocations);
    EXPECT_EQ(reports > 0, c.reported != nullptr)
        << "the first allocation is the one that such calls cannot do without";
    free_buffers();
    EXPECT_EQ(host_.live_blocks(), 0);
  }

 private:
  void free_buffers() { host_->sMKL_FreeBuffers(); }

  FailingHost host_;
  Operands operands_;
};

TEST(AllocationFaults, GiveTheRightResultOrAReportAndNoOutput) {
  Campaign campaign;
  for (const Case& c : cases()) {
    for (const int failures : {1, 1000}) campaign.run(c, failures);
  }
}

}  // namespace
}  // namespace quorin::test
