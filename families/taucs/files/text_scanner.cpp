#include "families/taucs/files/text_scanner.hpp"

#include <algorithm>
#include <cstring>

namespace quorin::taucs {

bool TextScanner::refill() noexcept {
  if (is_at_end_ || !buffer_) return false;
  const auto left = static_cast<std::size_t>(end_ - position_);
  std::memmove(buffer_.data(), position_, left);
  const std::size_t room = kSize - left;
  const std::size_t added = file_.read(buffer_.data() + left, room);
  is_at_end_ = added < room;
  position_ = buffer_.data();
  end_ = position_ + left + added;
  return added > 0;
}

bool TextScanner::next_line(std::string_view& line) noexcept {
  const char* stop = std::find(position_, end_, '\n');
  if (stop == end_ && refill()) stop = std::find(position_, end_, '\n');
  if (stop == end_ && (position_ == end_ || !is_at_end_)) return false;
  line = {position_, static_cast<std::size_t>(stop - position_)};
  if (line.ends_with('\r')) line.remove_suffix(1);
  position_ = stop == end_ ? end_ : stop + 1;
  return true;
}

}  // namespace quorin::taucs
