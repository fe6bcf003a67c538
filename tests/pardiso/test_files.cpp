// Factors in files, and handles that go through a file.
#include <filesystem>
#include <fstream>

#include "tests/pardiso/systems.hpp"
#include "tests/support/environment.hpp"
#include "tests/support/standard.hpp"
#include "tests/support/temporary_folder.hpp"

namespace pardiso_test {
namespace {

namespace fs = std::filesystem;

// A folder of its own for each test, and no settings in the environment.
class Files : public testing::Test {
 protected:
  ~Files() override {
    for (const char* name : {"PATH", "MAX_CORE_SIZE", "MAX_SWAP_SIZE", "KEEP_FILE", "CFG_PATH", "CFG_FILE_NAME"}) {
      set(name, nullptr);
    }
  }

  static void set(const std::string& name, const char* value) {
    quorin::test::set_environment(("MKL_PARDISO_OOC_" + name).c_str(), value);
  }
  int count() const { return temporary_.files(); }

 private:
  const quorin::test::TemporaryFolder temporary_;

 protected:
  const fs::path folder = temporary_.path();
};

class OutOfCore : public Files {
 protected:
  OutOfCore() { set("PATH", (folder / "factor").string().c_str()); }
  static Matrix grid(int mtype) { return matrix_of(quorin::test::convection_diffusion(100, 30.0), mtype); }
  static Matrix symmetric_grid(int mtype) { return matrix_of(quorin::test::convection_diffusion(100, 0.0), mtype); }
};

TEST_F(OutOfCore, GivesTheSameSolution) {
  for (const Matrix& A : {grid(11), grid(1), symmetric_grid(2), symmetric_grid(-2)}) {
    SCOPED_TRACE(A.mtype);
    std::vector<double> expected;
    for (const char* core : {"2000", "1"}) {
      set("MAX_CORE_SIZE", core);
      for (const int storage : {0, 2}) {
        Host<double> host(A, 1, 3);
        host.cell(60) = storage;
        for (std::size_t i = 0; i < host.b.size(); ++i) host.b[i] = std::sin(static_cast<double>(i));
        ASSERT_EQ(host.call(12), 0);
        EXPECT_EQ(count() > 0, storage == 2);
        ASSERT_EQ(host.call(33), 0);
        if (expected.empty()) expected = host.x;
        for (std::size_t i = 0; i < expected.size(); ++i) ASSERT_NEAR(host.x[i], expected[i], 1e-12);
        EXPECT_LE(host.cell(63), host.cell(17));
        for (double& value : host.a) value *= 2.0;
        ASSERT_EQ(host.call(23), 0);
        for (std::size_t i = 0; i < expected.size(); ++i) ASSERT_NEAR(2.0 * host.x[i], expected[i], 1e-12);
        EXPECT_EQ(host.call(331), 0);
        EXPECT_EQ(host.release(), 0);
        EXPECT_EQ(count(), 0);
      }
    }
  }
}

TEST_F(OutOfCore, WhereMemoryDoesNotSuffice) {
  const auto uses_files = [&](const char* core, const char* swap) {
    set("MAX_CORE_SIZE", core);
    set("MAX_SWAP_SIZE", swap);
    Host<double> host(grid(11));
    host.cell(60) = 1;
    EXPECT_EQ(host.call(13), 0);
    EXPECT_LT(backward_error(grid(11), host, host.b, host.x), 1e-14);
    return count() > 0;
  };
  EXPECT_FALSE(uses_files("100", nullptr));
  EXPECT_FALSE(uses_files("1", "100"));
  EXPECT_TRUE(uses_files("1", nullptr));
  EXPECT_FALSE(uses_files("rubbish", "-3")) << "what is not understood is the default";
}

TEST_F(OutOfCore, HoldsLessThanTheWidestSupernode) {
  quorin::test::SparseMatrix cube = quorin::test::grid(20, 20, 20);
  for (auto& entry : cube.entries) entry.value = entry.row == entry.column ? 7.0 : -1.0;
  cube.mirror();
  set("MAX_CORE_SIZE", "1");
  for (const int mtype : {2, 11}) {
    const Matrix A = matrix_of(cube, mtype);
    Host<double> host(A);
    host.cell(60) = 2;
    EXPECT_EQ(host.call(13), 0);
    EXPECT_LT(backward_error(A, host, host.b, host.x), 1e-14);
  }
}

TEST_F(OutOfCore, SaysWhatIsInTheWay) {
  Host<double> host(grid(11));
  host.cell(60) = 2;
  set("MAX_CORE_SIZE", "0");
  EXPECT_EQ(host.call(12), -9);
  EXPECT_EQ(host.call(33), -1);
  set("MAX_CORE_SIZE", nullptr);
  set("PATH", (folder / "nowhere" / "factor").string().c_str());
  EXPECT_EQ(host.call(22), -10);
  set("PATH", (folder / "factor").string().c_str());
  EXPECT_EQ(host.call(22), 0);
  // In core after all.
  host.cell(60) = 0;
  EXPECT_EQ(host.call(23), 0);
  EXPECT_EQ(count(), 0);
  EXPECT_LT(backward_error(grid(11), host, host.b, host.x), 1e-14);
}

TEST_F(OutOfCore, SettingsFromAFile) {
  set("PATH", nullptr);
  set("CFG_PATH", folder.string().c_str());
  set("CFG_FILE_NAME", "settings.txt");
  std::ofstream(folder / "settings.txt")
      << "MKL_PARDISO_OOC_PATH = " << (folder / "from_file").string()
      << "\n# a remark\nMKL_PARDISO_OOC_MAX_CORE_SIZE=1\r\n  MKL_PARDISO_OOC_KEEP_FILE = 0";
  {
    Host<double> host(grid(11));
    host.cell(60) = 1;
    EXPECT_EQ(host.call(13), 0);
  }
  const auto kept = count();
  EXPECT_GT(kept, 1) << "files are kept";
  // The environment outranks the file.
  set("MAX_CORE_SIZE", "100");
  {
    Host<double> host(grid(11));
    host.cell(60) = 1;
    EXPECT_EQ(host.call(13), 0);
  }
  EXPECT_EQ(count(), kept);
}

TEST_F(OutOfCore, SeveralHandlesAtOnce) {
  Host<double> first(grid(11)), second(symmetric_grid(2));
  first.maxfct = 2;
  for (const int slot : {1, 2}) {
    first.mnum = slot;
    first.cell(60) = 2;
    ASSERT_EQ(first.call(slot == 1 ? 12 : 22), 0);
  }
  second.cell(60) = 2;
  ASSERT_EQ(second.call(13), 0);
  std::vector<std::unique_ptr<Host<double>>> more;
  for (int k = 0; k < 70; ++k) {
    more.push_back(std::make_unique<Host<double>>(matrix_of(quorin::test::convection_diffusion(2, 0.0), 2)));
    more.back()->cell(60) = 2;
    ASSERT_EQ(more.back()->call(12), 0) << k;
  }
  first.mnum = 1;
  ASSERT_EQ(first.call(33), 0);
  EXPECT_LT(backward_error(grid(11), first, first.b, first.x), 1e-14);
  EXPECT_LT(backward_error(symmetric_grid(2), second, second.b, second.x), 1e-14);
}

// --- Handles ---------------------------------------------------------------------------------------------------------

class Handles : public Files {
 protected:
  template <class T>
  int store(Host<T>& host) const {
    std::int32_t error = 7;
    sPARDISO_HANDLE_STORE(host.pt.data(), folder.string().c_str(), &error);
    return error;
  }
  template <class T>
  int restore(Host<T>& host) const {
    std::int32_t error = 7;
    sPARDISO_HANDLE_RESTORE(host.pt.data(), folder.string().c_str(), &error);
    return error;
  }
  int remove() const {
    std::int32_t error = 7;
    sPARDISO_HANDLE_DELETE(folder.string().c_str(), &error);
    return error;
  }
  fs::path file() const { return folder / "handle.pds"; }
};

// Between each two stages.
template <class T>
struct RoundTrip {
  template <class Store, class Restore>
  static void run(const System& system, const Store& store, const Restore& restore) {
    SCOPED_TRACE(system.name);
    Host<T> first(system.matrix);
    ASSERT_EQ(first.call(11), 0);
    ASSERT_EQ(store(first), 0);
    Host<T> second(system.matrix);
    ASSERT_EQ(restore(second), 0);
    EXPECT_EQ(second.call(33), -1);
    ASSERT_EQ(first.call(23), 0);
    ASSERT_EQ(second.call(23), 0);
    EXPECT_EQ(second.x, first.x);
    ASSERT_EQ(store(second), 0);
    second.release();
    Host<T> third(system.matrix);
    ASSERT_EQ(restore(third), 0);
    ASSERT_EQ(third.call(33), 0);
    EXPECT_EQ(third.x, first.x);
    third.cell(8) = 2;
    ASSERT_EQ(third.call(33), 0);
    ASSERT_EQ(third.call(23), 0);
    ASSERT_EQ(first.call(33), 0);
  }
};

TEST_F(Handles, GoThroughAFile) {
  for (const System& system : systems()) {
    const auto keep = [this](auto& host) { return store(host); };
    const auto bring = [this](auto& host) { return restore(host); };
    in_both_precisions(system.matrix.mtype, [&]<class T> { RoundTrip<T>::run(system, keep, bring); });
  }
  EXPECT_EQ(remove(), 0);
  EXPECT_EQ(count(), 0);
  EXPECT_EQ(remove(), -10);
}

// The solution that a second process finds with the file has the same bits. This program is that process, too, when the
// environment names a folder.
TEST_F(Handles, OutliveTheProcess) {
  constexpr const char* kVariable = "QUORIN_TEST_HANDLE_FOLDER";
  const Matrix A = matrix_of(quorin::test::convection_diffusion(12, 40.0), 11);
  Host<double> host(A);
  const auto solution = [](const fs::path& place) { return (place / "x").string(); };
  if (const char* const from = std::getenv(kVariable); from != nullptr) {
    std::int32_t error = 7;
    sPARDISO_HANDLE_RESTORE(host.pt.data(), from, &error);
    ASSERT_EQ(error, 0);
    ASSERT_EQ(host.call(33), 0);
    std::ofstream(solution(from), std::ios::binary)
        .write(reinterpret_cast<const char*>(host.x.data()),
               static_cast<std::streamsize>(host.x.size() * sizeof(double)));
    return;
  }
  ASSERT_EQ(host.call(13), 0);
  ASSERT_EQ(store(host), 0);
  EXPECT_TRUE(quorin::test::passes_in_another_process(kVariable, folder.string()));
  std::ifstream in(solution(folder), std::ios::binary);
  std::vector<double> x(host.x.size());
  in.read(reinterpret_cast<char*>(x.data()), static_cast<std::streamsize>(x.size() * sizeof(double)));
  EXPECT_TRUE(in.good());
  EXPECT_EQ(x, host.x);
  in.close();
}

// Several factorizations, a Schur complement, flags, a diagonal, rows in disorder.
TEST_F(Handles, KeepEverything) {
  Matrix A = matrix_of(quorin::test::convection_diffusion(10, 9.0), 11);
  std::swap(A.ja[0], A.ja[1]);
  std::swap(A.a[0], A.a[1]);
  const auto prepare = [](Host<double>& host) {
    host.maxfct = 2;
    host.cell(36) = 2;
    host.cell(56) = 1;
    host.perm[20] = host.perm[40] = host.perm[77] = 1;
  };
  Host<double> first(A), second(A);
  prepare(first);
  prepare(second);
  for (const int slot : {1, 2}) {
    first.mnum = slot;
    for (double& value : first.a) value *= 1.5;
    ASSERT_EQ(first.call(slot == 1 ? 12 : 22), 0);
  }
  ASSERT_EQ(store(first), 0);
  ASSERT_EQ(restore(second), 0);
  std::vector<double> df(100), da(100), other_df(100), other_da(100);
  for (const int slot : {1, 2}) {
    first.mnum = second.mnum = slot;
    for (const int phase : {33, 331}) {
      ASSERT_EQ(first.call(phase), 0);
      ASSERT_EQ(second.call(phase), 0);
      EXPECT_EQ(second.x, first.x);
    }
    std::int32_t error = 7;
    pardiso_getdiag(first.pt.data(), df.data(), da.data(), &slot, &error);
    EXPECT_EQ(error, 0);
    pardiso_getdiag(second.pt.data(), other_df.data(), other_da.data(), &slot, &error);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(df, other_df);
    EXPECT_EQ(da, other_da);
  }
}

TEST_F(Handles, TakeFactorsOutOfTheirFiles) {
  set("PATH", (folder / "factor").string().c_str());
  Host<double> first(unsymmetric8()), second(unsymmetric8());
  first.cell(60) = 2;
  ASSERT_EQ(first.call(13), 0);
  ASSERT_EQ(store(first), 0);
  EXPECT_EQ(first.release(), 0);
  EXPECT_EQ(count(), 1);
  ASSERT_EQ(restore(second), 0);
  ASSERT_EQ(second.call(33), 0);
  EXPECT_EQ(second.x, first.x);
}

TEST_F(Handles, AreHeldAgainstTheHostsParameters) {
  Host<double> first(unsymmetric8());
  ASSERT_EQ(first.call(12), 0);
  ASSERT_EQ(store(first), 0);
  Host<double> zero_based(unsymmetric8(), 0), other(indefinite8());
  ASSERT_EQ(restore(zero_based), 0);
  EXPECT_EQ(zero_based.call(33), -1);
  ASSERT_EQ(restore(other), 0);
  EXPECT_EQ(other.call(33), -1);
  Host<float> single(unsymmetric8());
  ASSERT_EQ(restore(single), 0);
  EXPECT_EQ(single.call(33), -1);
}

TEST_F(Handles, FolderNames) {
  const fs::path before = fs::current_path();
  Host<double> host(unsymmetric8());
  ASSERT_EQ(host.call(12), 0);
  fs::current_path(folder);
  for (const std::string& name : {std::string(), std::string("."), folder.string(), folder.string() + "/",
                                  fs::path(folder / "").make_preferred().string()}) {
    std::int32_t error = 7;
    sPARDISO_HANDLE_STORE(host.pt.data(), name.c_str(), &error);
    EXPECT_EQ(error, 0) << name;
    EXPECT_TRUE(fs::exists(file())) << name;
    sPARDISO_HANDLE_DELETE(name.c_str(), &error);
    EXPECT_EQ(error, 0) << name;
    EXPECT_FALSE(fs::exists(file())) << name;
  }
  fs::current_path(before);
}

TEST_F(Handles, SayWhatIsInTheWay) {
  Host<double> host(unsymmetric8());
  EXPECT_EQ(store(host), -13) << "nothing to store";
  EXPECT_EQ(restore(host), -10);
  std::int32_t error = 7;
  sPARDISO_HANDLE_STORE(nullptr, folder.string().c_str(), &error);
  EXPECT_EQ(error, -13);
  host.pt[0] = &host;
  EXPECT_EQ(store(host), -13);
  host.pt[0] = nullptr;
  ASSERT_EQ(host.call(12), 0);
  sPARDISO_HANDLE_STORE(host.pt.data(), (folder / "nowhere").string().c_str(), &error);
  EXPECT_EQ(error, -10);
  EXPECT_EQ(host.call(33), 0);
}

TEST_F(Handles, RefuseDamagedFiles) {
  Host<double> host(unsymmetric5()), other(unsymmetric5());
  ASSERT_EQ(host.call(12), 0);
  ASSERT_EQ(store(host), 0);
  for (auto length = fs::file_size(file()); length > 0;) {
    fs::resize_file(file(), length -= std::min<std::uintmax_t>(length, 99));
    EXPECT_EQ(restore(other), -13) << length;
  }
}

}  // namespace
}  // namespace pardiso_test
