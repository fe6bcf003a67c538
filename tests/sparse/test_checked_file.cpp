// Files that are whole or refused: cut short, damaged, foreign, forged, and in use by others.
#include "sparse/numeric/checked_file.hpp"
#include "tests/sparse/files.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {
namespace {

using Replacing = FileWriter::Replacing;

// Larger than the buffers, in pieces that do not divide them.
std::vector<double> numbers(std::size_t count) {
  std::vector<double> values(count);
  std::iota(values.begin(), values.end(), 0.25);
  return values;
}

FactorOutcome write_file(const std::string& name, const std::vector<double>& values,
                         Replacing replacing = Replacing::kAtTheEnd) {
  FileWriter writer;
  if (const FactorOutcome outcome = writer.begin(name.c_str(), FileKind::kHandle, replacing);
      outcome != FactorOutcome::kDone) {
    return outcome;
  }
  writer.put(std::int32_t{-7});
  writer.put(static_cast<std::uint64_t>(values.size()));
  writer.put(std::span<const double>(values));
  writer.put(std::complex<float>(1, -2));
  return writer.complete();
}

FactorOutcome read_file(const std::string& name, std::vector<double>& values, FileKind kind = FileKind::kHandle) {
  FileReader reader;
  if (const FactorOutcome outcome = reader.begin(name.c_str(), kind); outcome != FactorOutcome::kDone) return outcome;
  if (reader.get<std::int32_t>() != -7) reader.reject();
  base::Workspace<double> got;
  if (reader.get(got, reader.get<std::uint64_t>())) values.assign(got.begin(), got.end());
  if (reader.get<std::complex<float>>() != std::complex<float>(1, -2)) reader.reject();
  return reader.complete();
}

TEST(Crc32, IsThePublishedOneHoweverTheDataAreCut) {
  const std::string text = "123456789";
  EXPECT_EQ(crc32(text.data(), text.size()), 0xcbf43926U);  // the check value of this code
  EXPECT_EQ(crc32("", 0), 0U);
  const std::string longer = "The quick brown fox jumps over the lazy dog";
  for (std::size_t cut = 0; cut <= longer.size(); ++cut) {
    const std::uint32_t before = crc32(longer.data(), cut);
    EXPECT_EQ(crc32(longer.data() + cut, longer.size() - cut, before), 0x414fa339U);
  }
}

TEST(CheckedFile, GivesBackWhatWasPut) {
  const Folder folder;
  for (const std::size_t count : {0, 1, 8191, 8192, 8193, 100'000}) {
    std::vector<double> values;
    ASSERT_EQ(write_file(folder.file("a"), numbers(count)), FactorOutcome::kDone);
    EXPECT_EQ(read_file(folder.file("a"), values), FactorOutcome::kDone);
    EXPECT_EQ(values, numbers(count));
  }
  EXPECT_EQ(folder.files(), 1);
  // Over a longer one.
  std::vector<double> values;
  ASSERT_EQ(write_file(folder.file("a"), numbers(5), Replacing::kInPlace), FactorOutcome::kDone);
  EXPECT_EQ(read_file(folder.file("a"), values), FactorOutcome::kDone);
  EXPECT_EQ(values, numbers(5));
}

TEST(CheckedFile, ThatIsNotWholeIsRefused) {
  const Folder folder;
  const std::string name = folder.file("a");
  ASSERT_EQ(write_file(name, numbers(5)), FactorOutcome::kDone);
  const std::string whole = contents(name);
  std::vector<double> values;
  const auto outcome_of = [&](const std::string& text) {
    write_contents(name, text);
    return read_file(name, values);
  };
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_EQ(outcome_of(whole.substr(0, length)), FactorOutcome::kWrongFormat) << length;
  }
  EXPECT_EQ(outcome_of(whole + '\0'), FactorOutcome::kWrongFormat);
  for (std::size_t place = 0; place < whole.size(); ++place) {
    for (const int bit : {0, 7}) {
      std::string damaged = whole;
      damaged[place] = static_cast<char>(damaged[place] ^ (1 << bit));
      EXPECT_EQ(outcome_of(damaged), FactorOutcome::kWrongFormat) << place;
    }
  }
  EXPECT_EQ(outcome_of("%%MatrixMarket matrix coordinate real general\n1 1 1\n1 1 1\n"), FactorOutcome::kWrongFormat);
  // The next version's, with the right check of its first 28 bytes.
  std::string later = whole;
  ++later[8];
  const std::uint32_t check = crc32(later.data(), 28);
  std::memcpy(later.data() + 28, &check, sizeof check);
  EXPECT_EQ(outcome_of(later), FactorOutcome::kWrongFormat);
  EXPECT_EQ(outcome_of(whole), FactorOutcome::kDone);
  EXPECT_EQ(read_file(name, values, FileKind::kPanels), FactorOutcome::kWrongFormat);
  FileReader in_part;
  ASSERT_EQ(in_part.begin(name.c_str(), FileKind::kHandle), FactorOutcome::kDone);
  EXPECT_EQ(in_part.get<std::int32_t>(), -7);
  EXPECT_EQ(in_part.complete(), FactorOutcome::kWrongFormat) << "there is more";
  EXPECT_EQ(read_file(folder.file("b"), values), FactorOutcome::kCannotOpen);
  EXPECT_EQ(read_file(folder.file("."), values), FactorOutcome::kCannotOpen);
}

// A length that the file does not hold takes no memory, and reading on gives zeros.
TEST(CheckedFile, WithHostileLengthsIsRefused) {
  const Folder folder;
  for (const std::uint64_t length :
       {std::uint64_t{3}, std::uint64_t{1} << 32, std::uint64_t{1} << 61, std::numeric_limits<std::uint64_t>::max()}) {
    FileWriter writer;
    ASSERT_EQ(writer.begin(folder.file("a").c_str(), FileKind::kHandle), FactorOutcome::kDone);
    for (const double value : numbers(2)) writer.put(value);
    ASSERT_EQ(writer.complete(), FactorOutcome::kDone);
    FileReader reader;
    ASSERT_EQ(reader.begin(folder.file("a").c_str(), FileKind::kHandle), FactorOutcome::kDone);
    base::Workspace<double> values;
    EXPECT_FALSE(reader.get(values, length));
    EXPECT_EQ(values.size(), 0U);
    EXPECT_EQ(reader.get<double>(), 0);
    EXPECT_EQ(reader.complete(), FactorOutcome::kWrongFormat);
  }
}

// The data are on the disk before the header tells of them, and both before the file has its name.
TEST(CheckedFile, IsWrittenInTheOrderThatLossesOfPowerAskFor) {
  using Operation = platform::FileOperation;
  const Folder folder;
  EXPECT_EQ(operations_of([&] { EXPECT_EQ(write_file(folder.file("a"), numbers(3)), FactorOutcome::kDone); }),
            (std::vector{Operation::kCreate, Operation::kWrite, Operation::kFlush, Operation::kWrite, Operation::kFlush,
                         Operation::kRename}));
}

TEST(CheckedFile, BelongsToItsWriterAlone) {
  const Folder folder;
  const std::string name = folder.file("a");
  std::vector<double> values;
  {
    FileWriter writer;
    ASSERT_EQ(writer.begin(name.c_str(), FileKind::kHandle, Replacing::kInPlace), FactorOutcome::kDone);
    EXPECT_EQ(write_file(name, numbers(1), Replacing::kInPlace), FactorOutcome::kCannotOpen);
    EXPECT_EQ(read_file(name, values), FactorOutcome::kCannotOpen);
  }
  EXPECT_EQ(folder.files(), 0);
  ASSERT_EQ(write_file(name, numbers(1)), FactorOutcome::kDone);
  FileReader reader, second;
  ASSERT_EQ(reader.begin(name.c_str(), FileKind::kHandle), FactorOutcome::kDone);
  EXPECT_EQ(second.begin(name.c_str(), FileKind::kHandle), FactorOutcome::kDone);
  EXPECT_EQ(write_file(name, numbers(2), Replacing::kInPlace), FactorOutcome::kCannotOpen);
}

}  // namespace
}  // namespace quorin::sparse::test
