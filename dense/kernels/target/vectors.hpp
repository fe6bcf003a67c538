// Vectors of the instruction set that is being compiled for. For the files of kernels/target/ alone: they are read
// inside a region of compiler options for one instruction set (avx2.cpp and its like), include nothing but each other,
// and hold templates over that set only, so that no function of theirs stands in for one of another set.
#pragma once

namespace quorin::dense::kernels::target {

// The register file as 32-bit code sees it: eight vectors. A tile of C of kTileVectors by kTileColumns stays in
// registers while its sums are formed. Seven sums leave one register: for an element of B that multiplies vectors of A
// in memory, or, where the instructions can repeat an element of B from memory by themselves (AVX-512), for a vector of
// A. Without fused multiply-adds a product needs a register of its own, and sums wait for an addition alone, so that
// few of them are enough. Rows that do not fill a vector go to narrower registers, which make the same bits.
struct Sse2 {
  using Narrower = void;
  static constexpr auto kSet = platform::InstructionSet::kSse2;
  static constexpr int kBytes = 16, kTileVectors = 6, kTileColumns = 1, kSums = 6;
  static constexpr bool kFusesProducts = false;
};
// AVX2's instructions on registers of SSE's width, which cost nothing to leave.
struct Avx2Small {
  using Narrower = void;
  static constexpr auto kSet = platform::InstructionSet::kAvx2;
  static constexpr int kBytes = 16, kTileVectors = 7, kTileColumns = 1, kSums = 7;
  static constexpr bool kFusesProducts = true;
};
struct Avx2 {
  using Narrower = Avx2Small;
  static constexpr auto kSet = platform::InstructionSet::kAvx2;
  static constexpr int kBytes = 32, kTileVectors = 7, kTileColumns = 1, kSums = 7;
  static constexpr bool kFusesProducts = true;
};
template <int kVectorBytes>
struct Avx512Of {
  using Narrower = std::conditional_t<(kVectorBytes > 16), Avx512Of<kVectorBytes / 2>, void>;
  static constexpr auto kSet = platform::InstructionSet::kAvx512;
  static constexpr int kBytes = kVectorBytes, kTileVectors = 1, kTileColumns = 7, kSums = 7;
  static constexpr bool kFusesProducts = true;
};
using Avx512 = Avx512Of<64>;

// Whether vectors of half the width work for the set, too.
template <class Isa>
inline constexpr bool kHasNarrower = !std::is_void_v<typename Isa::Narrower>;

template <class Isa, class Real>
struct VectorTypes {
  using Vector [[gnu::vector_size(Isa::kBytes)]] = Real;
  // As it lies in an array of a host, which aligns even doubles to 4 bytes only.
  using InMemory [[gnu::vector_size(Isa::kBytes), gnu::aligned(4), gnu::may_alias]] = Real;
};
template <class Isa, class Real>
using Vector = typename VectorTypes<Isa, Real>::Vector;
template <class Isa, class Real>
inline constexpr int kLanes = Isa::kBytes / static_cast<int>(sizeof(Real));

template <class Isa, class Real>
[[gnu::always_inline]] inline Vector<Isa, Real> load(const Real* x) noexcept {
  return *reinterpret_cast<const typename VectorTypes<Isa, Real>::InMemory*>(x);
}
template <class Isa, class Real>
[[gnu::always_inline]] inline void store(Real* x, Vector<Isa, Real> v) noexcept {
  *reinterpret_cast<typename VectorTypes<Isa, Real>::InMemory*>(x) = v;
}
template <class Isa, class Real>
[[gnu::always_inline]] inline Vector<Isa, Real> all(Real x) noexcept {
  return x - Vector<Isa, Real>{};  // x - 0 is x, whatever its sign, and costs nothing
}

// One lane of an aligned vector in memory, in all lanes: one instruction of SSE2, where loading a number and repeating
// it are two. Nothing is read earlier or later than it: sums of several terms would else wait for each other in memory.
template <class Isa, int kLane, class Real>
[[gnu::always_inline]] inline Vector<Isa, Real> repeated_lane(const Real* aligned) noexcept {
  static_assert(Isa::kBytes == 16);
  constexpr int kOrder = sizeof(Real) == 4 ? 0x55 * kLane : kLane == 0 ? 0x44 : 0xEE;
  Vector<Isa, Real> result;
  asm volatile("pshufd %2, %1, %0"
               : "=x"(result)
               : "m"(*reinterpret_cast<const Vector<Isa, Real>*>(aligned)), "i"(kOrder)
               : "memory");
  return result;
}

// sum <- sum + x in the register of the sum, which the compiler would let wander until they run out.
template <class Isa, class Real>
[[gnu::always_inline]] inline void add_in_place(Vector<Isa, Real>& sum, Vector<Isa, Real> x) noexcept {
  if constexpr (sizeof(Real) == 4) {
    asm("addps %1, %0" : "+x"(sum) : "x"(x));
  } else {
    asm("addpd %1, %0" : "+x"(sum) : "x"(x));
  }
}

// Registers of SSE's width, whatever the set's.
template <class Isa>
struct Narrowest {
  static constexpr int kBytes = 16;
};

// to <- from, or from + to.
template <class Isa, class Real>
void put(const Real* from, int count, bool adds, Real* to) noexcept {
  using Quarter = Narrowest<Isa>;
  constexpr int kWidth = kLanes<Quarter, Real>;
  int i = 0;
  for (; i + kWidth <= count; i += kWidth) {
    const auto values = load<Quarter>(from + i);
    store<Quarter, Real>(to + i, adds ? values + load<Quarter>(to + i) : values);
  }
  for (; i < count; ++i) to[i] = adds ? from[i] + to[i] : from[i];
}

// Keeps what a register holds from being computed again, read from memory, or fused with what follows.
template <class V>
[[gnu::always_inline]] inline void pin(V& vector) noexcept {
  asm("" : "+v"(vector));
}

}  // namespace quorin::dense::kernels::target
