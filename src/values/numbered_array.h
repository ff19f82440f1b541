// Lists that count from 1, with an index 0 that stays empty.
#pragma once

#include <vector>

#include "values/fault.h"
#include "values/numbers.h"

namespace bogenwerker {

// An array of the bounds 0 to last. Memory grows with what is stored. An index beyond the bounds throws Fault.
template <class T, int last>
class NumberedArray {
 public:
  T& operator[](Integer index) {
    const std::size_t place = checked(index);
    if (place >= elements_.size()) elements_.resize(place + 1);
    return elements_[place];
  }
  const T& operator[](Integer index) const {
    static const T empty{};
    const std::size_t place = checked(index);
    return place < elements_.size() ? elements_[place] : empty;
  }

  static constexpr int mostEntries = last;

 private:
  static std::size_t checked(Integer index) {
    if (index < 0 || index > last) {
      throw Fault("Eine Liste hat mehr als " + std::to_string(last) +
                  " Einträge. So viele fasst der Bogenwerker nicht.");
    }
    return static_cast<std::size_t>(index.value());
  }
  std::vector<T> elements_;
};

}  // namespace bogenwerker
