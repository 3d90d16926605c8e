// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

namespace mivo {

/// An immutable list of elements with an `id`, in order, each id once: of elements with the same id the first is kept.
/// Copying is O(1), finding an id O(1), making one O(n). Holds fewer than 2^31 elements. Thread: any.
template <class Element>
class IdentifiedArray {
 public:
  using ID = std::remove_cvref_t<decltype(std::declval<const Element&>().id)>;
  using value_type = Element;
  using size_type = std::size_t;
  using difference_type = std::ptrdiff_t;
  using reference = const Element&;
  using const_reference = const Element&;
  using iterator = const Element*;
  using const_iterator = const Element*;

  IdentifiedArray() = default;
  IdentifiedArray(std::vector<Element> elements)
      : storage{elements.empty() ? nullptr : std::make_shared<const Storage>(std::move(elements))} {}
  IdentifiedArray(std::initializer_list<Element> elements) : IdentifiedArray{std::vector<Element>(elements)} {}

  const Element* data() const { return storage ? storage->elements.data() : nullptr; }
  std::size_t size() const { return storage ? storage->elements.size() : 0; }
  bool empty() const { return size() == 0; }
  const Element* begin() const { return data(); }
  const Element* end() const { return data() + size(); }
  const Element& operator[](std::size_t index) const { return storage->elements[index]; }
  const Element& front() const { return storage->elements.front(); }
  const Element& back() const { return storage->elements.back(); }

  /// The element with that id; null where there is none.
  const Element* find(const ID& id) const { return storage ? storage->find(id) : nullptr; }
  bool contains(const ID& id) const { return find(id) != nullptr; }
  std::optional<std::size_t> indexOf(const ID& id) const {
    const Element* element = find(id);
    return element ? std::optional{static_cast<std::size_t>(element - data())} : std::nullopt;
  }

  /// A vector to change and make a new array of.
  std::vector<Element> elements() const { return storage ? storage->elements : std::vector<Element>{}; }

  bool sharesStorageWith(const IdentifiedArray& other) const { return storage == other.storage; }

  friend bool operator==(const IdentifiedArray& one, const IdentifiedArray& other) {
    return one.sharesStorageWith(other) || std::equal(one.begin(), one.end(), other.begin(), other.end());
  }

 private:
  // An open-addressed table of places in `elements`, at most half full. A node-based map would allocate once a bar.
  struct Storage {
    std::vector<Element> elements;
    std::vector<std::uint32_t> slots;  // place + 1; 0 is free

    explicit Storage(std::vector<Element> all)
        : elements{std::move(all)}, slots(std::bit_ceil(elements.size() * 2), 0) {
      std::size_t kept = 0;
      for (std::size_t place = 0; place < elements.size(); ++place) {
        std::uint32_t& slot = slots[slotOf(elements[place].id)];
        if (slot != 0) continue;
        if (kept != place) elements[kept] = std::move(elements[place]);
        slot = static_cast<std::uint32_t>(++kept);
      }
      elements.erase(elements.begin() + static_cast<std::ptrdiff_t>(kept), elements.end());
    }

    std::size_t slotOf(const ID& id) const {
      const std::size_t mask = slots.size() - 1;
      // Mixed, because a standard hash of a number is that number, and ids may be alike in half of their bits.
      const std::uint64_t hash = std::hash<ID>{}(id);
      std::size_t slot = ((hash ^ hash >> 32) * 0x9E3779B97F4A7C15u >> 32) & mask;
      while (slots[slot] != 0 && !(elements[slots[slot] - 1].id == id)) slot = (slot + 1) & mask;
      return slot;
    }

    const Element* find(const ID& id) const {
      const std::uint32_t slot = slots[slotOf(id)];
      return slot == 0 ? nullptr : &elements[slot - 1];
    }
  };

  std::shared_ptr<const Storage> storage;  // none for an empty array
};

}  // namespace mivo
