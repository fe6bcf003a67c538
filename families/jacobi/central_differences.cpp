#include "families/jacobi/central_differences.hpp"

#include <cmath>

namespace quorin::jacobi {

Request CentralDifferences::advance(const float* forward, const float* backward) {
  switch (asked_) {
    case kDone:
      column_ = 0;
      return begin_column();
    case kForward:
      x_[column_] = below_;
      return asked_ = kBackward;
    default:
      write_column(forward, backward);
      x_[column_] = centre_;
      ++column_;
      return column_ < n_ ? begin_column() : (asked_ = kDone);
  }
}

Request CentralDifferences::begin_column() {
  centre_ = x_[column_];
  choose_points(eps_);
  if (above_ == below_) choose_points(std::fabs(centre_) / 256);
  x_[column_] = above_;
  return asked_ = kForward;
}

void CentralDifferences::choose_points(float h) {
  const auto finite = [this](float point) { return std::isfinite(point) ? point : centre_; };
  above_ = finite(centre_ + h);
  below_ = finite(centre_ - h);
}

void CentralDifferences::write_column(const float* forward, const float* backward) {
  float* const column = jacobian_ + m_ * column_;
  const double distance = double{above_} - double{below_};
  for (std::size_t i = 0; i < m_; ++i) {
    column[i] = static_cast<float>((double{forward[i]} - double{backward[i]}) / distance);
  }
}

}  // namespace quorin::jacobi
