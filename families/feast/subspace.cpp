#include "families/feast/subspace.hpp"

#include <complex>

namespace quorin::feast {

template <Scalar T>
bool Subspace<T>::reserve(int n, int capacity, int threads) {
  n_ = n;
  capacity_ = capacity;
  threads_ = threads;
  const auto elements = [n](int columns) {
    return base::saturating_product(static_cast<std::size_t>(n), static_cast<std::size_t>(columns));
  };
  X_ = base::Workspace<T>(elements(capacity));
  other_ = base::Workspace<T>(elements(capacity));
  blocks_ = base::Workspace<T>(elements(2 * std::min(threads, block_count(capacity)) * block_width(capacity)));
  return X_ && other_ && blocks_;
}

template <Scalar T>
void Subspace<T>::randomize(int j) {
  const auto number = [this] { return static_cast<double>(random_() >> 11) * 0x1p-52 - 1; };
  std::generate(column(j), column(size_), [&] {
    if constexpr (kIsComplex<T>) {
      const double re = number();
      return T{re, number()};
    } else {
      return number();
    }
  });
}

template <Scalar T>
void Subspace<T>::combine(const T* C, int count) {
  dense::blocked::gemm('N', 'N', n_, count, size_, T{1}, column(0), n_, C, size_, T{}, other(0), n_, threads_);
  exchange();
  size_ = count;
}

template <Scalar T>
void Subspace<T>::select(std::span<const int> order) {
  int place = 0;
  for (const int j : order) std::copy_n(column(j), n_, other(place++));
  exchange();
  size_ = place;
}

template class Subspace<double>;
template class Subspace<std::complex<double>>;

}  // namespace quorin::feast
