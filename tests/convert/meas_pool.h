// Storage of the decoded values that the measurement block tests build: zeroed blocks,
// freed together, and list nodes appended to a decoded list.
#ifndef UMTS_TEST_MEAS_POOL_H
#define UMTS_TEST_MEAS_POOL_H

#include <cstdlib>
#include <vector>

#include "umts_rrc.h"

namespace meastest {

struct Pool {
  std::vector<void*> blocks;
  Pool() = default;
  Pool(const Pool&) = delete;
  ~Pool() {
    for (void* b : blocks) std::free(b);
  }
  template <class T>
  T* make() {
    T* p = static_cast<T*>(std::calloc(1, sizeof(T)));
    blocks.push_back(p);
    return p;
  }
  template <class T>
  T* add(rtxDList& list) {
    T* value = make<T>();
    rtxDListNode* node = make<rtxDListNode>();
    node->data = value;
    rtxDListAppendNode(&list, node);
    return value;
  }
};

}  // namespace meastest

#endif /* UMTS_TEST_MEAS_POOL_H */
