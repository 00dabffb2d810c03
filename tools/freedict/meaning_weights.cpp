#include "freedict/meaning_order.h"

namespace freedict {

// zimbora-fit writes these.
const Features &weights(Language headwords) {
    static constexpr Features english{0.315,  0.084,  1.126,  0.085, 0.336,  0.665,  0.151, -2.009,
                                      -2.617, -0.211, -0.133, 0.284, -1.462, -0.165, 2.210, -3.418,
                                      5.574,  5.488,  0.310,  2.626, 0.000,  0.000};
    static constexpr Features hungarian{0.455, 0.221,  0.678, 0.346,  0.356,  0.373, 0.060, 0.022,
                                        0.000, -1.005, 0.064, -0.076, -0.439, 0.000, 0.581, -0.183,
                                        6.133, 3.641,  1.154, 1.061,  -1.121, 0.665};
    return headwords == Language::english ? english : hungarian;
}

}  // namespace freedict
