// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace mivo {

/// An immutable list: copying is O(1), because the copies share one storage. Contiguous, so a `std::span<const
/// Element>` takes it. Made from a vector, which a caller that wants to change it starts from again. Thread: any.
template <class Element>
class List {
  static_assert(!std::is_same_v<Element, bool>, "a list of bool is not contiguous");

 public:
  using value_type = Element;
  using size_type = std::size_t;
  using difference_type = std::ptrdiff_t;
  using reference = const Element&;
  using const_reference = const Element&;
  using iterator = const Element*;
  using const_iterator = const Element*;

  List() = default;
  List(std::vector<Element> elements)
      : storage{elements.empty() ? nullptr : std::make_shared<const std::vector<Element>>(std::move(elements))} {}
  List(std::initializer_list<Element> elements) : List{std::vector<Element>(elements)} {}

  const Element* data() const { return storage ? storage->data() : nullptr; }
  std::size_t size() const { return storage ? storage->size() : 0; }
  bool empty() const { return size() == 0; }
  const Element* begin() const { return data(); }
  const Element* end() const { return data() + size(); }
  const Element& operator[](std::size_t index) const { return (*storage)[index]; }
  const Element& front() const { return storage->front(); }
  const Element& back() const { return storage->back(); }

  /// A vector to change and make a new list of.
  std::vector<Element> elements() const { return storage ? *storage : std::vector<Element>{}; }

  bool sharesStorageWith(const List& other) const { return storage == other.storage; }

  friend bool operator==(const List& one, const List& other) {
    return one.sharesStorageWith(other) || std::equal(one.begin(), one.end(), other.begin(), other.end());
  }

 private:
  std::shared_ptr<const std::vector<Element>> storage;  // none for an empty list
};

}  // namespace mivo
