#pragma once

#include <random>

#include "platform/random_numbers.h"

/// Random numbers of a generator that is seeded from the clock.
class SystemRandom final : public RandomNumbers {
  public:
    SystemRandom();

    [[nodiscard]] double next() override;
    void reseed() override;

  private:
    std::mt19937_64 generator_;
};
