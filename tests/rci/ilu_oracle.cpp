#include "tests/rci/ilu_oracle.hpp"

#include "tests/support/standard.hpp"

namespace rci_test {

Settings::Settings(double threshold, bool replaces, double value) : ipar(128), dpar(128) {
  ipar[30] = replaces ? 1 : 0;
  dpar[30] = threshold;
  dpar[31] = value;
}

Ilu0::Ilu0(const Csr& A, const Settings& s) : factors(A), values(A.a.size(), -7.0) {
  call_index_form(sDCSRILU0_Idx, &A.n, A.a, A.ia, A.ja, values, s.ipar, s.dpar, &ierr);
  guarded = values.intact();
  for (std::size_t k = 0; k < A.a.size(); ++k) factors.a[k] = values[k];
}

Ilut::Ilut(const Csr& A, double tol, int fill, const Settings& s) {
  const int p = std::max(0, std::min(fill, A.n - 1));
  const auto length = static_cast<std::size_t>((2 * p + 1) * A.n - p * (p + 1) + 1);
  Guarded<double> values(length, -7.0);
  Guarded<int> starts(A.n + 1, -7), columns(length, -7);
  call_index_form(sDCSRILUT_Idx, &A.n, A.a, A.ia, A.ja, values, starts, columns, &tol, &fill, s.ipar, s.dpar, &ierr);
  guarded = values.intact() && starts.intact() && columns.intact();
  if (ierr < 0) return;
  factors.n = A.n;
  factors.ia.assign(starts.data(), starts.data() + A.n + 1);
  const int count = factors.ia[A.n] - 1;
  factors.ja.assign(columns.data(), columns.data() + count);
  factors.a.assign(values.data(), values.data() + count);
}

Csr from_rows(const Rows& rows) {
  Csr out{static_cast<int>(rows.size()), {1}, {}, {}};
  for (const auto& row : rows) {
    for (const auto& [j, v] : row) {
      out.ja.push_back(j + 1);
      out.a.push_back(v);
    }
    out.ia.push_back(static_cast<int>(out.ja.size()) + 1);
  }
  return out;
}

Csr map_ilut(const Csr& A, double tol, int fill, double multiplier) {
  Rows rows(A.n);
  const auto keep_largest = [&](std::map<int, double>& part) {
    std::vector<std::pair<double, int>> order;
    for (const auto& [j, v] : part) order.emplace_back(-std::fabs(v), j);
    std::sort(order.begin(), order.end());
    for (std::size_t k = fill; k < order.size(); ++k) part.erase(order[k].second);
  };
  for (int i = 0; i < A.n; ++i) {
    std::map<int, double> row, lower, upper;
    double length = 0.0;
    for (int k = A.ia[i] - 1; k < A.ia[i + 1] - 1; ++k) {
      row[A.ja[k] - 1] = A.a[k];
      length = std::hypot(length, A.a[k]);
    }
    const double drop = tol * length;
    for (auto entry = row.begin(); entry != row.end() && entry->first < i; ++entry) {
      const double factor = entry->second / rows[entry->first].at(entry->first);
      if (std::fabs(factor) <= drop) continue;
      lower[entry->first] = factor;
      for (const auto& [j, v] : rows[entry->first]) {
        if (j > entry->first) row[j] -= factor * v;
      }
    }
    for (const auto& [j, v] : row) {
      if (j > i && std::fabs(v) > drop) upper[j] = v;
    }
    keep_largest(lower);
    keep_largest(upper);
    rows[i] = lower;
    rows[i].insert(upper.begin(), upper.end());
    rows[i][i] = std::fabs(row[i]) < drop ? multiplier * length : row[i];
  }
  return from_rows(rows);
}

double pattern_residual(const Csr& A, const Csr& factors) {
  double worst = 0.0;
  for (int i = 0; i < A.n; ++i) {
    std::map<int, std::pair<double, double>> row;  // sum, and sum of magnitudes
    const auto add_row = [&](int k, double l) {
      for (int u = factors.ia[k] - 1; u < factors.ia[k + 1] - 1; ++u) {
        if (factors.ja[u] - 1 < k) continue;
        row[factors.ja[u] - 1].first += l * factors.a[u];
        row[factors.ja[u] - 1].second += std::fabs(l * factors.a[u]);
      }
    };
    for (int p = factors.ia[i] - 1; factors.ja[p] - 1 < i; ++p) add_row(factors.ja[p] - 1, factors.a[p]);
    add_row(i, 1.0);
    for (int p = A.ia[i] - 1; p < A.ia[i + 1] - 1; ++p) {
      const auto& [sum, magnitude] = row[A.ja[p] - 1];
      const double scale = magnitude + std::fabs(A.a[p]);
      if (scale > 0.0) worst = std::max(worst, std::fabs(sum - A.a[p]) / scale);
    }
  }
  return worst;
}

}  // namespace rci_test
