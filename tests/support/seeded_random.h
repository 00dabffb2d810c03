#pragma once

#include <random>

#include "platform/random_numbers.h"

/// The same sequence in every run of a test.
class SeededRandom final : public RandomNumbers {
  public:
    explicit SeededRandom(unsigned seed = 1) : generator_(seed) {}

    int reseeds = 0;

    [[nodiscard]] double next() override { return std::generate_canonical<double, 53>(generator_); }
    /// A new sequence would be another one in every run, so this one goes on.
    void reseed() override { ++reseeds; }

  private:
    std::mt19937 generator_;
};
