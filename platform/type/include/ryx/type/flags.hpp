// ryx::type::Flags<E, Storage, Bits>: a set of flags over the enumeration E.
//
// The flag of an enumerator is the bit whose index is the enumerator's value
// (converted to Storage); the set holds Bits bits and is all clear when built.
#pragma once

#include <bitset>
#include <cstddef>
#include <stdexcept>

namespace ryx::type {

template <class E, class Storage, std::size_t Bits>
class Flags {
public:
  constexpr Flags() noexcept = default;

  Flags& Set(E flag) {
    bits.set(Index(flag));
    return *this;
  }
  Flags& Clear(E flag) {
    bits.reset(Index(flag));
    return *this;
  }
  bool Test(E flag) const { return bits.test(Index(flag)); }

  bool None() const noexcept { return bits.none(); }
  std::bitset<Bits> const& GetBits() const noexcept { return bits; }

  friend bool operator==(Flags const& a, Flags const& b) noexcept { return a.bits == b.bits; }
  friend bool operator!=(Flags const& a, Flags const& b) noexcept { return a.bits != b.bits; }

private:
  // std::bitset throws std::out_of_range for an index past Bits.
  static std::size_t Index(E flag) { return static_cast<std::size_t>(static_cast<Storage>(flag)); }

  std::bitset<Bits> bits;
};

}  // namespace ryx::type
