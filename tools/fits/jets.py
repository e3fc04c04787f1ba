"""Taylor expansions with rigorous errors, with which tools/fits/check bounds the error of a polynomial.

A ball is an integer and a radius, both in units of 2^-BITS, within which a number lies. A jet is the expansion of a
function of x = centre + radius t in powers of t, a ball for each coefficient. An expression is evaluated twice: at
the centre, which gives the coefficients, and at a ball that holds the whole piece, where the coefficient of the highest
degree bounds the remainder of the truncated expansion (Taylor's theorem).

A quotient of two functions that both vanish at x = 0 is taken in a piece about 0 by dividing both by a power of x. Over
a ball that holds 0 too the coefficients just move: f(x) / x is the mean of f' between 0 and x. That the two vanish is
implied by the expression; it is verified to 250 bits.

Elementary functions of numbers are mpmath's, which we assume to be right to 64 bits more than a ball keeps.
"""
from fractions import Fraction

from mpmath import mp, mpf

BITS = 320
ONE = 1 << BITS
DEGREE = 36
mp.prec = BITS + 64
pi, ln2, ln10 = +mp.pi, mp.log(2), mp.log(10)


class TooWide(Exception):
    """The piece must be cut in two."""


def ball_of(value):
    """An exact number, or a real one that mpmath knows to more bits than we keep."""
    if isinstance(value, tuple):
        return value
    if isinstance(value, mpf):
        return int(mp.floor(mp.ldexp(value, BITS))), 2
    value = Fraction(value)
    scaled = value.numerator * ONE
    return scaled // value.denominator, int(scaled % value.denominator != 0)


def product(a, b):
    (m, r), (n, s) = a, b
    return m * n >> BITS, (abs(m) * s + r * (abs(n) + s) >> BITS) + 2 if r or s else int(m * n & (ONE - 1) != 0)


def quotient(a, b):
    (m, r), (n, s) = a, b
    if abs(n) <= s:
        raise TooWide
    return (m << BITS) // n, ((abs(m) * s + abs(n) * r) << BITS) // (abs(n) * (abs(n) - s)) + 2


def real(v):
    return mp.ldexp(mpf(v), -BITS)


def monotone(f, a, inside=lambda low, high: True):
    """f of a ball, f monotone where `inside` holds."""
    (m, r) = a
    low, high = real(m - r), real(m + r)
    if not inside(low, high):
        raise TooWide
    ends = [ball_of(f(v)) for v in ((low, high) if r else (low,))]
    low, high = min(m - r for m, r in ends), max(m + r for m, r in ends)
    # mpmath is right to its last place or two, and keeps 64 bits more than a ball of numbers of this size.
    slack = 4 + (max(abs(low), abs(high)) >> BITS + 32)
    return low + high >> 1, (high - low >> 1) + 1 + slack


class Piece:
    """A place where expressions are evaluated. `shifts` are the orders of the zeros that quotients met, in order."""

    def __init__(self, at_zero, degree, shifts=None):
        self.at_zero, self.degree = at_zero, degree
        self.known, self.shifts = shifts, []

    def shift(self, a, b):
        """How many powers of x to take off both sides of a quotient."""
        if self.known is not None:
            found = self.known[len(self.shifts)]
        else:
            found = 0
            while self.at_zero and found < len(b) - 1 and is_zero(b[found]):
                # Zero to all but the last bits: the list implies that the quotient has no pole.
                if found < len(a) and not is_zero(a[found]):
                    raise ZeroDivisionError("a pole")
                found += 1
        self.shifts.append(found)
        return found


def is_zero(ball):
    return abs(ball[0]) <= ball[1] < 1 << 60


class Jet:
    def __init__(self, piece, c):
        self.piece, self.c = piece, c

    def of(self, other):
        return other if isinstance(other, Jet) else Jet(self.piece, [ball_of(other)])

    def trimmed(self, c):
        c = c[:self.piece.degree + 1]
        while len(c) > 1 and c[-1] == (0, 0):
            c.pop()
        return Jet(self.piece, c)

    def __add__(self, other):
        a, b = self.c, self.of(other).c
        if len(a) < len(b):
            a, b = b, a
        return self.trimmed([(m + n, r + s) for (m, r), (n, s) in zip(a, b)] + a[len(b):])

    __radd__ = __add__

    def __neg__(self):
        return Jet(self.piece, [(-m, r) for m, r in self.c])

    def __sub__(self, other):
        return self + -self.of(other)

    def __rsub__(self, other):
        return -self + other

    def __mul__(self, other):
        a, b = self.c, self.of(other).c
        if len(b) == 1 or len(a) == 1:
            if len(b) == 1:
                a, b = b, a
            return self.trimmed([product(a[0], v) for v in b])
        length = min(len(a) + len(b) - 1, self.piece.degree + 1)
        mids, rads = [0] * length, [0] * length
        for i, (m, r) in enumerate(a):
            for j, (n, s) in enumerate(b[:length - i]):
                mids[i + j] += m * n
                if r or s:
                    rads[i + j] += abs(m) * s + r * (abs(n) + s)
        # An exact zero stays one.
        return self.trimmed([(m >> BITS, (r >> BITS) + (2 if r or m & ONE - 1 else 0)) for m, r in zip(mids, rads)])

    __rmul__ = __mul__

    def __truediv__(self, other):
        a, b = self.c, self.of(other).c
        return self.divided(a, b, self.piece.shift(a, b))

    def divided(self, a, b, shift=0):
        a, b = a[shift:] or [(0, 0)], b[shift:]
        length = self.piece.degree + 1 - shift
        if len(b) == 1:
            return self.trimmed([quotient(v, b[0]) for v in a])
        result = []
        for k in range(length):
            m, r = a[k] if k < len(a) else (0, 0)
            m, r = m << BITS, r << BITS
            for i in range(1, min(k, len(b) - 1) + 1):
                (n, s), (o, t) = b[i], result[k - i]
                m -= n * o
                r += abs(n) * t + s * (abs(o) + t)
            result.append(quotient((m >> BITS, (r >> BITS) + 2), b[0]))
        return Jet(self.piece, result)

    def __rtruediv__(self, other):
        return self.of(other) / self

    def __pow__(self, n):
        if not isinstance(n, int):
            return power(self, n)
        result = self
        for _ in range(n - 1):
            result = result * self
        return result

    def padded(self):
        return self.c + [(0, 0)] * (self.piece.degree + 1 - len(self.c))


def ratio(a, b):
    """A quotient within a function: never of two zeros."""
    return a.divided(a.c, b.c)


def over(m, r, n):
    """A ball of twice the scale, by a small number."""
    return (m >> BITS) // n, (r >> BITS) // n + 2


def integral(value, slope):
    """The jet with that value at t = 0 and that derivative."""
    return slope.trimmed([value] + [((m // (k + 1)), r // (k + 1) + 1 if m % (k + 1) or r else 0)
                                    for k, (m, r) in enumerate(slope.c)])


def slope(g):
    return g.trimmed([(m * k, r * k) for k, (m, r) in enumerate(g.c)][1:] or [(0, 0)])


def recurrence(g, first, weight):
    """h of first coefficient h_0 with k h_k = sum of weight(i, k) g_i h_{k-i}."""
    c, h = g.padded(), [first]
    for k in range(1, len(c)):
        m = r = 0
        for i in range(1, k + 1):
            w = weight(i, k)
            (n, s), (o, t) = c[i], h[k - i]
            if n or s:
                m += w * n * o
                r += abs(w) * (abs(n) * t + s * (abs(o) + t))
        h.append(over(m, r, k))
    return Jet(g.piece, h)


def exp(g):
    if not isinstance(g, Jet):
        return mp.exp(g)
    return recurrence(g, monotone(mp.exp, g.c[0]), lambda i, k: i)


def log(g):
    """The logarithm of the magnitude."""
    if not isinstance(g, Jet):
        return mp.log(g)
    first = monotone(lambda v: mp.log(abs(v)), g.c[0], lambda low, high: low * high > 0)
    return integral(first, ratio(slope(g), g))


def power(g, a):
    """g^a of positive g, a a fraction."""
    if not isinstance(g, Jet):
        return mp.power(g, mpf(a.numerator) / a.denominator)
    first = monotone(lambda v: mp.power(v, mpf(a.numerator) / a.denominator), g.c[0], lambda low, high: low > 0)
    p, q = a.numerator, a.denominator
    # k g_0 h_k = sum of (a i - (k - i)) g_i h_{k-i}
    scaled = ratio(g, Jet(g.piece, [g.c[0]]))
    c, h = scaled.padded(), [first]
    for k in range(1, len(c)):
        m = r = 0
        for i in range(1, k + 1):
            w = p * i - q * (k - i)
            (n, s), (o, t) = c[i], h[k - i]
            if n or s:
                m += w * n * o
                r += abs(w) * (abs(n) * t + s * (abs(o) + t))
        h.append(over(m, r, k * q))
    return Jet(g.piece, h)


def sqrt(g):
    return power(g, Fraction(1, 2))


def sine_and_cosine(g):
    (m, r) = g.c[0]
    s, c = [tuple(map(sum, zip(ball_of(f(real(m))), (0, r + 2)))) for f in (mp.sin, mp.cos)]
    if not (m or r):
        s, c = (0, 0), (ONE, 0)
    sines, cosines, a = [s], [c], g.padded()
    for k in range(1, len(a)):
        for target, source, sign in ((sines, cosines, 1), (cosines, sines, -1)):
            m = r = 0
            for i in range(1, k + 1):
                (n, s), (o, t) = a[i], source[k - i]
                if n or s:
                    m += i * n * o
                    r += i * (abs(n) * t + s * (abs(o) + t))
            target.append(over(sign * m, r, k))
    return Jet(g.piece, sines), Jet(g.piece, cosines)


def sin(g):
    return sine_and_cosine(g)[0] if isinstance(g, Jet) else mp.sin(g)


def cos(g):
    return sine_and_cosine(g)[1] if isinstance(g, Jet) else mp.cos(g)


def tan(g):
    if not isinstance(g, Jet):
        return mp.tan(g)
    return ratio(*sine_and_cosine(g))


def sinh(g):
    e = exp(g)
    return (e - exp(-g)) * Fraction(1, 2)


def cosh(g):
    e = exp(g)
    return (e + exp(-g)) * Fraction(1, 2)


def tanh(g):
    if not isinstance(g, Jet):
        return mp.tanh(g)
    e = exp(g * 2)
    return ratio(e - 1, e + 1)


def atan(g):
    if not isinstance(g, Jet):
        return mp.atan(g)
    return integral(monotone(mp.atan, g.c[0]), ratio(slope(g), g * g + 1))


def asin(g):
    first = monotone(mp.asin, g.c[0], lambda low, high: -1 < low and high < 1)
    return integral(first, slope(g) * power(1 - g * g, Fraction(-1, 2)))


def rise(m, d):
    """Of erf from m to m + d, divided by its slope at m."""
    m = mpf(m.numerator) / m.denominator
    scale = mp.exp(m * m) * mp.sqrt(mp.pi) / 2
    first = monotone(lambda v: (mp.erfc(m) - mp.erfc(m + v)) * scale, d.c[0]) if any(d.c[0]) else (0, 0)
    return integral(first, slope(d) * exp(-d * (d + 2 * m)))


def lgamma(g):
    """log|gamma| of a linear function: Stirling's series from 100 on, below by the recurrence."""
    if not isinstance(g, Jet):
        return mp.log(abs(mp.gamma(g)))
    if g.c[0][1] > 1 << 60:
        return lgamma_over(g)
    steps = max(0, 100 - (g.c[0][0] >> BITS))
    z = g + steps
    terms = 60
    inverse = ratio(g.of(1), z)
    square, series = inverse * inverse, g.of(0)
    for j in range(terms, 0, -1):
        b = mp.bernfrac(2 * j)
        series = series * square + Fraction(b[0], b[1] * 2 * j * (2 * j - 1))
    # What is left in a complex disc about z, of a quarter of its size; Cauchy's estimate bounds the coefficients. The
    # factor 4 covers the secant of half the angle.
    spread = sum(abs(m) + r for m, r in z.c[1:]) + z.c[0][1]
    if 4 * spread > z.c[0][0]:
        raise TooWide
    b = mp.bernoulli(2 * terms + 2)
    rest = ball_of(4 * abs(b) / ((2 * terms + 2) * (2 * terms + 1)) / (real(z.c[0][0]) * 3 / 4)**(2 * terms + 1))
    left = Jet(g.piece, [(0, sum(rest))] * (g.piece.degree + 1))
    result = (z - Fraction(1, 2)) * log(z) - z + mp.log(2 * mp.pi) / 2 + series * inverse + left
    return result if steps == 0 else result - log_product(g, steps)


def log_product(g, steps):
    """Of g, g + 1 and so on."""
    below = g
    for i in range(1, steps):
        below = below * (g + i)
    return log(below)


def lgamma_over(g):
    """The same over a ball, loosely: the k-th derivative is Hurwitz's zeta function, an integral bounds it."""
    assert len(g.c) <= 2
    steps = max(0, 1 - (g.c[0][0] - g.c[0][1] >> BITS))
    middle, radius = g.c[0]
    low, high = real(middle - radius) + steps, real(middle + radius) + steps
    digamma = [mp.digamma(low), mp.digamma(high)]
    slopes = max(map(abs, digamma))
    step = real(g.c[1][0])

    def between(a, b):
        (m, r), (n, s) = ball_of(a), ball_of(b)
        return m + n >> 1, (abs(m - n) >> 1) + r + s + 4

    value = mp.loggamma((low + high) / 2)
    c = [between(value - slopes * (high - low), value + slopes * (high - low)), between(digamma[0] * step,
                                                                                        digamma[1] * step)]
    for k in range(2, g.piece.degree + 1):
        sign = (-step)**k / k
        c.append(between(sign * high**(1 - k) / (k - 1), sign * (low**-k + low**(1 - k) / (k - 1))))
    return Jet(g.piece, c) if steps == 0 else Jet(g.piece, c) - log_product(g, steps)


def gamma(g):
    return exp(lgamma(g)) if isinstance(g, Jet) else mp.gamma(g)


# The supremum norm


class Expansion:
    """Of f in the piece of that centre and radius: coefficients as floats, and what they leave."""

    def __init__(self, f, centre, radius):
        c, r = ball_of(centre), ball_of(radius)
        at = Piece(centre == 0, DEGREE)
        middle = f(Jet(at, [c, r])).c
        inside = Piece(centre == 0, DEGREE, at.shifts)
        whole = f(Jet(inside, [(c[0], c[1] + r[0] + r[1]), r]))
        # Shifts cost degrees: the coefficient that all of them left.
        last = DEGREE - sum(at.shifts)
        self.c = [m / ONE for m, _ in middle[:last]]
        end = whole.c[last] if last < len(whole.c) else (0, 0)
        self.rest = (abs(end[0]) + end[1] + sum(r for _, r in middle[:last])) / ONE
        self.rest += 1e-14 * sum(map(abs, self.c))

    def __call__(self, t):
        y = 0.0
        for v in reversed(self.c):
            y = y * t + v
        return abs(y)

    def norm(self, low, high, best):
        """A bound on |f| at t within, or `best` if that is more, and the largest value that is certain."""
        bend = sum(k * (k - 1) * abs(v) for k, v in enumerate(self.c)) / 8
        cells = [(low + (high - low) * i / 64, low + (high - low) * (i + 1) / 64) for i in range(64)]
        top = bound = best
        while cells:
            ends = [(a, b, max(self(a), self(b))) for a, b in cells]
            top = max(top, max(v for *_, v in ends))
            # A chord and its function differ by the square of the cell and the second derivative at most.
            cells = []
            for a, b, v in ends:
                above = v + bend * (b - a)**2
                if above <= top * (1 + 1e-9):
                    bound = max(bound, above)
                else:
                    cells += [(a, (a + b) / 2), ((a + b) / 2, b)]
        return max(bound, top) + self.rest, max(best, top - self.rest)


def supremum(f, low, high):
    """A bound on |f| between the two, and the largest value seen."""
    seen = bound = 0.0
    if low < 0 < high:
        r = min(-low, high)
        pieces = [(-r, r)] + ([(r, high)] if r < high else []) + ([(low, -r)] if low < -r else [])
    elif low == 0:
        pieces = [(-high, high)]
    else:
        pieces = [(low, high)]
    count = 0
    while pieces:
        a, b = pieces.pop()
        count += 1
        if count > 5000:
            raise ValueError("does not converge")
        try:
            expansion = Expansion(f, (a + b) / 2, (b - a) / 2)
        except (TooWide, OverflowError):
            expansion = None
        first = 0.0 if low == 0 and a < 0 else -1.0
        if expansion is not None:
            seen = max(seen, *(expansion(first + (1 - first) * i / 8) - expansion.rest for i in range(9)))
            if sum(map(abs, expansion.c)) + expansion.rest <= seen:
                continue
        if expansion is None or expansion.rest > 1e-8 * seen:
            if a == -b:
                pieces += [(b / 2, b), (a / 2, b / 2)] + ([(a, a / 2)] if low < 0 else [])
            else:
                pieces += [(a, (a + b) / 2), ((a + b) / 2, b)]
            continue
        piece_bound, seen = expansion.norm(first, 1.0, seen)
        bound = max(bound, piece_bound)
    return max(bound, seen), seen
