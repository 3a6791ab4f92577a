#include "core/shell/ligne_finie.h"

#include <cmath>

namespace kestrel {

long premiere_non_finie(std::span<const double> v) {
    for (std::size_t i = 0; i < v.size(); ++i)
        if (!std::isfinite(v[i])) return static_cast<long>(i);
    return -1;
}

}  // namespace kestrel
