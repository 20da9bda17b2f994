#pragma once

#include <cstdint>
#include <string_view>

/// The hash of a name: a polynomial modulo the prime 2^61 - 1 at a random point, so that nobody can
/// write files full of collisions.
class NameHash {
 public:
  explicit NameHash(uint64_t length = 0) : drawn_(DrawnOnce()), value_(length) {}

  /// The bytes of the name, each as `fold` gives it.
  template <typename Fold>
  [[nodiscard]] static uint32_t Of(std::string_view name, Fold fold) {
    // Eight bytes would not stay below the prime.
    constexpr size_t step = 7;
    NameHash hash(name.size());
    while (!name.empty()) {
      uint64_t word = 0;
      for (const char byte : name.substr(0, step))
        word = word << 8U | fold(static_cast<unsigned char>(byte));
      hash.Add(word);
      name.remove_prefix(name.size() < step ? name.size() : step);
    }
    return hash.Value();
  }

  /// Makes it the hash of a text that is one word, below the prime, longer.
  void Add(uint64_t word) { value_ = Reduced(Product(value_, drawn_.point) + word); }

  /// The bits to look a name up with.
  [[nodiscard]] uint32_t Value() const {
    return static_cast<uint32_t>(Reduced(Product(value_, drawn_.spread)));
  }

 private:
  struct Drawn {
    uint64_t point;
    uint64_t spread;
  };

  static constexpr uint64_t Prime = (uint64_t{1} << 61U) - 1;

  [[nodiscard]] static uint64_t Product(uint64_t a, uint64_t b) {
    __extension__ using Wide = unsigned __int128;
    const Wide product = static_cast<Wide>(a) * b;
    return (static_cast<uint64_t>(product) & Prime) + static_cast<uint64_t>(product >> 61U);
  }

  [[nodiscard]] static uint64_t Reduced(uint64_t sum) {
    sum = (sum & Prime) + (sum >> 61U);
    return sum >= Prime ? sum - Prime : sum;
  }

  [[nodiscard]] static Drawn Draw();

  [[nodiscard]] static const Drawn& DrawnOnce() {
    static const Drawn drawn = Draw();
    return drawn;
  }

  const Drawn& drawn_;
  uint64_t value_;
};
