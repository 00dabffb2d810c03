#include "freedict/meaning_order.h"

namespace freedict {

// What zimbora-fit prints for tools/freedict/known_meanings.
const Features &weights(Language headwords) {
    static constexpr Features english{0.318,  0.089,  1.129,  0.087, 0.328,  0.667,  0.152, -2.009,
                                      -2.632, -0.194, -0.149, 0.289, -1.460, -0.178, 2.369, -3.457,
                                      5.546,  5.428,  0.255,  2.800, 0.000,  0.000};
    static constexpr Features hungarian{0.492, 0.212,  0.646, 0.355,  0.335,  0.356, 0.058, 0.053,
                                        0.000, -0.983, 0.055, -0.079, -0.482, 0.000, 0.585, -0.193,
                                        6.925, 3.504,  1.129, 1.152,  -1.141, 0.672};
    return headwords == Language::english ? english : hungarian;
}

}  // namespace freedict
