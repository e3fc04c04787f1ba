#!/usr/bin/env python3
"""Fitted data of the gamma functions: minimax polynomials of relative error, some as products of quadratics.

    tools/fits/gamma.py > tools/fits/gamma.fit      (under a minute; needs python3-mpmath)

The error of each fit goes to standard error, in bits.
"""
import sys

from mpmath import mp, mpf

mp.dps = 70


def lgamma(x):
    return mp.log(abs(mp.gamma(x)))


def polynomial(f, low, high, degree, centre=0, name=""):
    """Coefficients in x - centre, lowest first, by the exchange algorithm on a fixed grid."""
    low, high, centre = mpf(low), mpf(high), mpf(centre)
    count = 16 * (degree + 2)
    xs = [(low + high) / 2 - (high - low) / 2 * mp.cos(mp.pi * (2 * i + 1) / (2 * count)) for i in range(count)]
    # In a variable of size 1, so that the equations are well conditioned.
    half = max(abs(low - centre), abs(high - centre))
    us = [(x - centre) / half for x in xs]
    values = [f(x) for x in xs]
    # Spread evenly over a grid that is itself dense at the ends.
    chosen = [min(count - 1, i * count // (degree + 1)) for i in range(degree + 2)]
    for _ in range(40):
        rows = [[us[i] ** k / values[i] for k in range(degree + 1)] + [(-1) ** n] for n, i in enumerate(chosen)]
        solution = mp.lu_solve(mp.matrix(rows), mp.matrix([1] * (degree + 2)))
        c, level = [solution[k] for k in range(degree + 1)], abs(solution[degree + 1])
        errors = [mp.polyval(c[::-1], u) / v - 1 for u, v in zip(us, values)]
        # The largest error of each stretch of one sign.
        peaks = []
        for i, e in enumerate(errors):
            if peaks and (e > 0) == (errors[peaks[-1]] > 0):
                if abs(e) > abs(errors[peaks[-1]]):
                    peaks[-1] = i
            else:
                peaks.append(i)
        while len(peaks) > degree + 2:
            peaks.pop(0 if abs(errors[peaks[0]]) < abs(errors[peaks[-1]]) else -1)
        largest = max(abs(e) for e in errors)
        if largest < level * mpf("1.02") or len(peaks) < degree + 2:
            break
        chosen = peaks
    print(f"{name} [{mp.nstr(low, 6)}, {mp.nstr(high, 6)}] degree {degree}: 2^{float(mp.log(largest, 2)):.1f}",
          file=sys.stderr)
    return [c[k] / half**k for k in range(degree + 1)]


def quadratics(c):
    """A polynomial of even degree as its highest coefficient and factors x^2 + a x + b."""
    roots = mp.polyroots([k / c[-1] for k in c[::-1]], maxsteps=1000, extraprec=600)
    small = mpf(10) ** -40
    real = sorted(mp.re(z) for z in roots if abs(mp.im(z)) < small * abs(z))
    pairs = [(-2 * mp.re(z), abs(z) ** 2) for z in roots if mp.im(z) >= small * abs(z)]
    pairs += [(-(p + q), p * q) for p, q in zip(real[::2], real[1::2])]
    assert 2 * len(pairs) == len(c) - 1
    return c[-1], sorted(pairs)


def literal(v, bits):
    """The nearest number with that many bits."""
    v = mpf(v)
    if v == 0:
        return "0"
    mantissa, exponent = mp.frexp(abs(v))
    whole = int(mp.nint(mp.ldexp(mantissa, bits)))
    return f"{'-' if v < 0 else ''}0x{whole:X}p{exponent - bits}"


def row(values, bits):
    return " ".join(literal(v, bits) for v in values)


def table(name, rows):
    print(name, *rows, sep="\n")


def factored_row(scale, pairs, bits):
    return row([scale] + [a for a, _ in pairs] + [b for _, b in pairs], bits)


def polynomial_table(name, c):
    """One row, highest power first."""
    table(name, [row(reversed(c), 64)])


# lgamma, single precision

# At 2^(k+2) (1 + u), in u, highest power first.
table("lgammaf_octaves",
      [row(reversed(polynomial(lambda u: lgamma(2**k * (1 + u)), 0, 1, 10, name="lgammaf octave")), 53)
       for k in range(2, 13)])


def expansion(root):
    return [mp.psi(2, root) / 6, mp.psi(1, root) / 2, mp.psi(0, root), lgamma(root)]


# A row of the zeros next to -3 - j, and one of those next to -2 - j, j = 0 and 1: each zero's window by low end, middle
# and high end, and a cubic about the middle.
windows = [[("-2.7476876467274125", "-2.7476826467274127", "-2.747677646727413"),
            ("-3.955314284858597", "-3.955294284858598", "-3.955256462097168")],
           [("-2.4570297382208004", "-2.4570247382208006", "-2.4570197382208008"),
            ("-3.1435858883499797", "-3.14358088834998", "-3.14357588834998")]]
table("lgammaf_roots",
      [" ".join(row([float(low), float(root), float(high)] + expansion(mpf(float(root))), 53)
                for low, root, high in rows) for rows in windows])

# lgamma, double precision

centre = mpf(0xBB16C31AB5F1FC00) / mpf(2)**63
# log-gamma / (x - 1) between 0.875 and 1.25, in x - 1.
polynomial_table("lgamma_at_1",
                 polynomial(lambda x: lgamma(x) / (x - 1), mpf("0.875"), mpf("1.25"), 18, 1, "lgamma at 1"))
# log-gamma between 1.25 and 1.75, in the distance from its minimum.
polynomial_table("lgamma_at_minimum", polynomial(lgamma, mpf("1.25"), mpf("1.75"), 20, centre, "lgamma at its minimum"))
# log-gamma / (x - 2) between 1.75 and 2.25, in x - 2.
polynomial_table("lgamma_at_2",
                 polynomial(lambda x: lgamma(x) / (x - 2), mpf("1.75"), mpf("2.25"), 16, 2, "lgamma at 2"))
# log-gamma / (x - 2) between 2.25 and 4, in x: scale, a and b of the factors.
table("lgamma_to_4",
      [factored_row(*quadratics(polynomial(lambda x: lgamma(x) / (x - 2), mpf("2.25"), 4, 22, 0, "lgamma to 4")), 64)])
# log-gamma at 2^(k+2) (1 + u), in u: scale, a and b of the factors.
table("lgamma_octaves",
      [factored_row(*quadratics(polynomial(lambda u: lgamma(2**k * (1 + u)), 0, 1, 22, 0, "lgamma octave")), 64)
       for k in range(2, 9)])


def root_row(guess, degree):
    zero = mpf(guess)
    for _ in range(12):
        zero -= lgamma(zero) / mp.psi(0, zero)
    assert abs(lgamma(zero)) < mpf(10) ** -50
    root = mpf(float(zero))
    half = mpf("0.041") if degree == 19 else mpf("0.0605") / abs(mp.psi(0, root))
    at_root = lgamma(root)
    c = [at_root] + polynomial(lambda x: (lgamma(x) - at_root) / (x - root), root - half, root + half, degree - 1, root,
                               f"lgamma root {mp.nstr(root, 6)}")
    return row((root - half, root, root + half), 53) + " " + row(c[::-1], 64)


# Where log-gamma is zero: the window's low end, middle and high end, a polynomial about the middle, highest
# power first. Row j: between -3 - j and -2 - j, the zero next to -3 - j, and the one next to -2 - j.
far = [("-2.7476826467274127", 19), ("-3.955294284858598", 13)]
near = [("-2.4570247382208006", 15), ("-3.14358088834998", 13)]
for n in range(4, 15):
    far.append((-(n + 1) + 1 / mp.factorial(n + 1), 13))
    near.append((-n - 1 / mp.factorial(n), 13))
table("lgamma_far_roots", [root_row(*where) for where in far])
table("lgamma_near_roots", [root_row(*where) for where in near])


def sine(s):
    """sin(pi t) / (pi t) with s = t t"""
    return mp.sinc(mp.pi * mp.sqrt(s))


tiny = mpf(2)**-40
# log(sin(pi t) / (pi t)) / t^2 for t up to 1/2, in t^2.
polynomial_table("lgamma_reflection", polynomial(lambda s: mp.log(sine(s)) / s, tiny, mpf("0.25"), 15, 0, "reflection"))


# Logarithm
def log_rest(f):
    """(log(1 + f) - f + f f / 2) / f^3"""
    return (mp.log(1 + f) - f + f * f / 2) / f**3


# (log(1 + f) - f + f^2 / 2) / f^3 for f up to 1/256.
polynomial_table("log_after_table", polynomial(log_rest, -mpf(2)**-7.9, mpf(2)**-7.9, 6, 0, "log after table"))
# The same for f up to 1/64.
polynomial_table("log_at_1", polynomial(log_rest, -mpf(1) / 63, mpf(1) / 63, 10, 0, "log at 1"))

# gamma, single precision

gamma_shrink = mpf(float("5.546450927971236e-46"))


def gamma_rows(starts, degree, bits, last_scale):
    rows = []
    for start in starts:
        size = mp.gamma(start + mpf("0.5"))
        c = polynomial(lambda g: mp.gamma(start + g) / size, 0, 1, degree, 0, f"gamma at {start}")
        scale, pairs = quadratics(c)
        rows.append(factored_row(scale * size * (last_scale if start == starts[-1] else 1), pairs, bits))
    return rows


# gamma(a) for a = 2 + g, then for a = 8 k + g, in g; the last row scaled down: scale, a and b of the factors.
table("tgammaf_rows", gamma_rows([2] + [8 * k for k in range(1, 6)], 12, 53, gamma_shrink))

# gamma, double precision

gamma_shrink = mpf(0xBA5D5869211696FF) * mpf(2)**(0x3BEC - 16383 - 63)
# gamma(a) for a = 2 + g, then for a = 16 k + g, in g; the last row scaled down: scale, a and b of the factors.
table("tgamma_rows", gamma_rows([2] + [16 * k for k in range(1, 12)], 22, 64, gamma_shrink))
centre = mpf(float("1.46163214496836236"))
# gamma between 1 and 1.25, in y - 1.
polynomial_table("tgamma_from_1", polynomial(mp.gamma, 1, mpf("1.25"), 15, 1, "gamma from 1"))
# gamma between 1.25 and 1.5, in the distance from its minimum.
polynomial_table("tgamma_at_minimum", polynomial(mp.gamma, mpf("1.25"), mpf("1.5"), 15, centre, "gamma at its minimum"))
# gamma between 1.5 and 2, in y - 1.
polynomial_table("tgamma_to_2", polynomial(mp.gamma, mpf("1.5"), 2, 17, 1, "gamma to 2"))
# (sin(pi t) / (pi t) - 1) / t^2 for t up to 1/2, in t^2.
polynomial_table("tgamma_sine", polynomial(lambda s: (sine(s) - 1) / s, tiny, mpf("0.25"), 8, 0, "sine"))
