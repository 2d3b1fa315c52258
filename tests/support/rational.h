// support/rational.h - exact fractions, so that a rule can be worked out without any rounding.
#pragma once

#include <cmath>

#include "core/numbers.h"

/// Numerator and denominator have 127 bits; a test keeps its numbers small enough for them.
class Rational {
public:
    Rational(Double X) {
        for (; X != std::floor(X); X *= 2.0) Den_ *= 2;
        Num_ = static_cast<Wide>(X);
    }
    friend Rational operator+(const Rational& A, const Rational& B) {
        return {A.Num_ * B.Den_ + B.Num_ * A.Den_, A.Den_ * B.Den_};
    }
    friend Rational operator-(const Rational& A, const Rational& B) { return A + B * -1.0; }
    friend Rational operator*(const Rational& A, const Rational& B) {
        return {A.Num_ * B.Num_, A.Den_ * B.Den_};
    }
    friend Rational operator/(const Rational& A, const Rational& B) {
        return {A.Num_ * B.Den_, A.Den_ * B.Num_};
    }
    Long Floor() const { return static_cast<Long>(Num_ / Den_ - (Num_ % Den_ < 0 ? 1 : 0)); }
    Double Nearest() const {
        return static_cast<Double>(static_cast<long double>(Num_) / static_cast<long double>(Den_));
    }

private:
    __extension__ typedef __int128 Wide;

    // In lowest terms, the denominator above 0.
    Rational(Wide Num, Wide Den) {
        Wide A = Num, B = Den;
        while (B != 0) {
            const Wide Rest = A % B;
            A = B, B = Rest;
        }
        if ((A < 0) != (Den < 0)) A = -A;
        Num_ = Num / A, Den_ = Den / A;
    }

    Wide Num_ = 0, Den_ = 1;
};
