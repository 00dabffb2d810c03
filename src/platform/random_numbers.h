#pragma once

/// Random numbers for draws. The real ones are in SystemRandom below.
class RandomNumbers {
  public:
    virtual ~RandomNumbers() = default;

    /// Uniform in [0, 1).
    [[nodiscard]] virtual double next() = 0;
    /// Begins a new sequence.
    virtual void reseed() = 0;

    /// A whole number, uniform in 0 … n − 1; n ≥ 1.
    [[nodiscard]] int pick(int n) { return static_cast<int>(next() * n); }
};
