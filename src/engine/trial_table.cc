// SPDX-License-Identifier: MIT
// The hash table of outcomes that do not fit in the window.
#include "engine/trial_table.h"

#include <algorithm>

namespace vexltags {
namespace {

constexpr std::size_t kFirstPlaces = 256;
constexpr std::size_t kMostPlacesToReuse = 1 << 16;

}  // namespace

std::size_t TrialTable::FarPlace(unsigned number, std::size_t token) const {
  const std::uint64_t mixed =
      (static_cast<std::uint64_t>(token) * kNumbers + number) * 0x9E3779B97F4A7C15U;
  std::size_t place = (mixed >> 32) & (far.size() - 1);
  while (far[place].time == now && (far[place].token != token || far[place].number != number)) {
    place = (place + 1) & (far.size() - 1);
  }
  return place;
}

TrialTable::Outcome TrialTable::FindFar(unsigned number, std::size_t token) const {
  const Far& found = far[FarPlace(number, token)];
  if (found.time != now) return {};
  return {true, (found.bits & kSuccess) != 0, (found.bits & kMatched) != 0, found.end, found.reach};
}

void TrialTable::KeepFar(unsigned number, std::size_t token, const Outcome& outcome) {
  if (2 * farCount >= far.size()) {
    std::vector<Far> old(std::max(kFirstPlaces, 2 * far.size()), Far{});
    old.swap(far);
    for (const Far& entry : old) {
      if (entry.time == now) far[FarPlace(entry.number, entry.token)] = entry;
    }
  }
  Far& place = far[FarPlace(number, token)];
  if (place.time != now) ++farCount;
  place = {static_cast<std::uint32_t>(token),         static_cast<std::uint32_t>(outcome.end),
           static_cast<std::uint32_t>(outcome.reach), now,
           static_cast<std::uint16_t>(number),        static_cast<std::uint16_t>(Bits(outcome))};
  lastFar = std::max(lastFar, token);
}

void TrialTable::ForgetFar() {
  if (far.size() > kMostPlacesToReuse || now == 0xFFFFFFFF) {
    far = std::vector<Far>(kFirstPlaces);
    now = 0;
  }
  ++now;
  farCount = 0;
  lastFar = 0;
}

void TrialTable::Clear() {
  firstLap += kLapsOfAFile;
  if (farCount != 0) ForgetFar();
}

}  // namespace vexltags
