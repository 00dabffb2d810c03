#pragma once

#include <utility>
#include <vector>

#include "platform/random_numbers.h"

/// Random numbers that a test writes down; one more than those throws.
class ScriptedRandom final : public RandomNumbers {
  public:
    explicit ScriptedRandom(std::vector<double> numbers) : numbers_(std::move(numbers)) {}

    int reseeds = 0;

    /// Numbers that have not been drawn.
    [[nodiscard]] size_t left() const { return numbers_.size() - drawn_; }

    [[nodiscard]] double next() override { return numbers_.at(drawn_++); }
    void reseed() override { ++reseeds; }

  private:
    std::vector<double> numbers_;
    size_t drawn_ = 0;
};

/// Another generator, with a count of what is drawn from it.
class CountingRandom final : public RandomNumbers {
  public:
    explicit CountingRandom(RandomNumbers &counted) : counted_(counted) {}

    int drawn = 0;

    [[nodiscard]] double next() override {
        ++drawn;
        return counted_.next();
    }
    void reseed() override { counted_.reseed(); }

  private:
    RandomNumbers &counted_;
};
