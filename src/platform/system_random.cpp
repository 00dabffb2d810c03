#include "platform/system_random.h"

#include <chrono>

SystemRandom::SystemRandom() {
    reseed();
}

double SystemRandom::next() {
    return std::generate_canonical<double, 53>(generator_);
}

void SystemRandom::reseed() {
    generator_.seed(static_cast<std::mt19937_64::result_type>(
        std::chrono::high_resolution_clock::now().time_since_epoch().count()));
}
