/* Conversions.
 *
 * Between lanes of 32 and 64 bits, floating and integer, with the rounding in the name: rte to nearest even, rtn
 * down, rtp up, rtz toward zero. Floating to integer: the same whatever the current rounding direction. sat clamps to
 * the integer type's range and gives 0 for a NaN, except with 32-bit unsigned results, where a NaN with its sign clear
 * gives the largest integer. Without sat, NaNs and values that do not fit give 0x80000000 or 0x8000000000000000, and
 * unsigned results are the magnitude of the rounded value. Integer to floating: rte follows the current direction; the
 * others require that it is to nearest. double to float: rte follows the current direction, the others do not.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_CONVERSION_H
#define LANEMATH_CONVERSION_H

#include <lanemath/types.h>

LANEMATH_BEGIN

/* int cvtfptoi32rtesat(double x)
 * double to int, rounded to nearest even, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtesat, , int, double)

/* int cvtfptoi32rtesatf(float x)
 * float to int, rounded to nearest even, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtesatf, , int, float)

/* int cvtfptoi32rtenosat(double x)
 * double to int, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtenosat, , int, double)

/* int cvtfptoi32rtenosatf(float x)
 * float to int, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtenosatf, , int, float)

/* int cvtfptoi32rtnsat(double x)
 * double to int, rounded down, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtnsat, , int, double)

/* int cvtfptoi32rtnsatf(float x)
 * float to int, rounded down, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtnsatf, , int, float)

/* int cvtfptoi32rtnnosat(double x)
 * double to int, rounded down. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtnnosat, , int, double)

/* int cvtfptoi32rtnnosatf(float x)
 * float to int, rounded down. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtnnosatf, , int, float)

/* int cvtfptoi32rtpsat(double x)
 * double to int, rounded up, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtpsat, , int, double)

/* int cvtfptoi32rtpsatf(float x)
 * float to int, rounded up, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtpsatf, , int, float)

/* int cvtfptoi32rtpnosat(double x)
 * double to int, rounded up. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtpnosat, , int, double)

/* int cvtfptoi32rtpnosatf(float x)
 * float to int, rounded up. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtpnosatf, , int, float)

/* int cvtfptoi32rtzsat(double x)
 * double to int, rounded toward zero, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtzsat, , int, double)

/* int cvtfptoi32rtzsatf(float x)
 * float to int, rounded toward zero, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtzsatf, , int, float)

/* int cvtfptoi32rtznosat(double x)
 * double to int, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtznosat, , int, double)

/* int cvtfptoi32rtznosatf(float x)
 * float to int, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtfptoi32rtznosatf, , int, float)

/* uint cvtfptou32rtesat(double x)
 * double to uint, rounded to nearest even, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtesat, , uint, double)

/* uint cvtfptou32rtesatf(float x)
 * float to uint, rounded to nearest even, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtesatf, , uint, float)

/* uint cvtfptou32rtenosat(double x)
 * double to uint, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtenosat, , uint, double)

/* uint cvtfptou32rtenosatf(float x)
 * float to uint, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtenosatf, , uint, float)

/* uint cvtfptou32rtnsat(double x)
 * double to uint, rounded down, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtnsat, , uint, double)

/* uint cvtfptou32rtnsatf(float x)
 * float to uint, rounded down, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtnsatf, , uint, float)

/* uint cvtfptou32rtnnosat(double x)
 * double to uint, rounded down. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtnnosat, , uint, double)

/* uint cvtfptou32rtnnosatf(float x)
 * float to uint, rounded down. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtnnosatf, , uint, float)

/* uint cvtfptou32rtpsat(double x)
 * double to uint, rounded up, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtpsat, , uint, double)

/* uint cvtfptou32rtpsatf(float x)
 * float to uint, rounded up, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtpsatf, , uint, float)

/* uint cvtfptou32rtpnosat(double x)
 * double to uint, rounded up. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtpnosat, , uint, double)

/* uint cvtfptou32rtpnosatf(float x)
 * float to uint, rounded up. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtpnosatf, , uint, float)

/* uint cvtfptou32rtzsat(double x)
 * double to uint, rounded toward zero, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtzsat, , uint, double)

/* uint cvtfptou32rtzsatf(float x)
 * float to uint, rounded toward zero, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtzsatf, , uint, float)

/* uint cvtfptou32rtznosat(double x)
 * double to uint, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtznosat, , uint, double)

/* uint cvtfptou32rtznosatf(float x)
 * float to uint, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtfptou32rtznosatf, , uint, float)

/* long cvtfptoi64rtesat(double x)
 * double to long, rounded to nearest even, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtesat, , long, double)

/* long cvtfptoi64rtesatf(float x)
 * float to long, rounded to nearest even, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtesatf, , long, float)

/* long cvtfptoi64rtenosat(double x)
 * double to long, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtenosat, , long, double)

/* long cvtfptoi64rtenosatf(float x)
 * float to long, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtenosatf, , long, float)

/* long cvtfptoi64rtnsat(double x)
 * double to long, rounded down, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtnsat, , long, double)

/* long cvtfptoi64rtnsatf(float x)
 * float to long, rounded down, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtnsatf, , long, float)

/* long cvtfptoi64rtnnosat(double x)
 * double to long, rounded down. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtnnosat, , long, double)

/* long cvtfptoi64rtnnosatf(float x)
 * float to long, rounded down. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtnnosatf, , long, float)

/* long cvtfptoi64rtpsat(double x)
 * double to long, rounded up, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtpsat, , long, double)

/* long cvtfptoi64rtpsatf(float x)
 * float to long, rounded up, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtpsatf, , long, float)

/* long cvtfptoi64rtpnosat(double x)
 * double to long, rounded up. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtpnosat, , long, double)

/* long cvtfptoi64rtpnosatf(float x)
 * float to long, rounded up. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtpnosatf, , long, float)

/* long cvtfptoi64rtzsat(double x)
 * double to long, rounded toward zero, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtzsat, , long, double)

/* long cvtfptoi64rtzsatf(float x)
 * float to long, rounded toward zero, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtzsatf, , long, float)

/* long cvtfptoi64rtznosat(double x)
 * double to long, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtznosat, , long, double)

/* long cvtfptoi64rtznosatf(float x)
 * float to long, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtfptoi64rtznosatf, , long, float)

/* ulong cvtfptou64rtesat(double x)
 * double to ulong, rounded to nearest even, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtesat, , ulong, double)

/* ulong cvtfptou64rtesatf(float x)
 * float to ulong, rounded to nearest even, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtesatf, , ulong, float)

/* ulong cvtfptou64rtenosat(double x)
 * double to ulong, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtenosat, , ulong, double)

/* ulong cvtfptou64rtenosatf(float x)
 * float to ulong, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtenosatf, , ulong, float)

/* ulong cvtfptou64rtnsat(double x)
 * double to ulong, rounded down, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtnsat, , ulong, double)

/* ulong cvtfptou64rtnsatf(float x)
 * float to ulong, rounded down, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtnsatf, , ulong, float)

/* ulong cvtfptou64rtnnosat(double x)
 * double to ulong, rounded down. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtnnosat, , ulong, double)

/* ulong cvtfptou64rtnnosatf(float x)
 * float to ulong, rounded down. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtnnosatf, , ulong, float)

/* ulong cvtfptou64rtpsat(double x)
 * double to ulong, rounded up, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtpsat, , ulong, double)

/* ulong cvtfptou64rtpsatf(float x)
 * float to ulong, rounded up, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtpsatf, , ulong, float)

/* ulong cvtfptou64rtpnosat(double x)
 * double to ulong, rounded up. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtpnosat, , ulong, double)

/* ulong cvtfptou64rtpnosatf(float x)
 * float to ulong, rounded up. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtpnosatf, , ulong, float)

/* ulong cvtfptou64rtzsat(double x)
 * double to ulong, rounded toward zero, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtzsat, , ulong, double)

/* ulong cvtfptou64rtzsatf(float x)
 * float to ulong, rounded toward zero, clamped to the range of the result. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtzsatf, , ulong, float)

/* ulong cvtfptou64rtznosat(double x)
 * double to ulong, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtznosat, , ulong, double)

/* ulong cvtfptou64rtznosatf(float x)
 * float to ulong, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtfptou64rtznosatf, , ulong, float)

/* double cvti32tofprte(int x)
 * int to double, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvti32tofprte, , double, int)

/* float cvti32tofprtef(int x)
 * int to float, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvti32tofprtef, , float, int)

/* double cvti32tofprtn(int x)
 * int to double, rounded down. */
LANEMATH_DECLARE(UNARY, cvti32tofprtn, , double, int)

/* float cvti32tofprtnf(int x)
 * int to float, rounded down. */
LANEMATH_DECLARE(UNARY, cvti32tofprtnf, , float, int)

/* double cvti32tofprtp(int x)
 * int to double, rounded up. */
LANEMATH_DECLARE(UNARY, cvti32tofprtp, , double, int)

/* float cvti32tofprtpf(int x)
 * int to float, rounded up. */
LANEMATH_DECLARE(UNARY, cvti32tofprtpf, , float, int)

/* double cvti32tofprtz(int x)
 * int to double, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvti32tofprtz, , double, int)

/* float cvti32tofprtzf(int x)
 * int to float, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvti32tofprtzf, , float, int)

/* double cvtu32tofprte(uint x)
 * uint to double, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtu32tofprte, , double, uint)

/* float cvtu32tofprtef(uint x)
 * uint to float, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtu32tofprtef, , float, uint)

/* double cvtu32tofprtn(uint x)
 * uint to double, rounded down. */
LANEMATH_DECLARE(UNARY, cvtu32tofprtn, , double, uint)

/* float cvtu32tofprtnf(uint x)
 * uint to float, rounded down. */
LANEMATH_DECLARE(UNARY, cvtu32tofprtnf, , float, uint)

/* double cvtu32tofprtp(uint x)
 * uint to double, rounded up. */
LANEMATH_DECLARE(UNARY, cvtu32tofprtp, , double, uint)

/* float cvtu32tofprtpf(uint x)
 * uint to float, rounded up. */
LANEMATH_DECLARE(UNARY, cvtu32tofprtpf, , float, uint)

/* double cvtu32tofprtz(uint x)
 * uint to double, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtu32tofprtz, , double, uint)

/* float cvtu32tofprtzf(uint x)
 * uint to float, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtu32tofprtzf, , float, uint)

/* double cvti64tofprte(long x)
 * long to double, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvti64tofprte, , double, long)

/* float cvti64tofprtef(long x)
 * long to float, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvti64tofprtef, , float, long)

/* double cvti64tofprtn(long x)
 * long to double, rounded down. */
LANEMATH_DECLARE(UNARY, cvti64tofprtn, , double, long)

/* float cvti64tofprtnf(long x)
 * long to float, rounded down. */
LANEMATH_DECLARE(UNARY, cvti64tofprtnf, , float, long)

/* double cvti64tofprtp(long x)
 * long to double, rounded up. */
LANEMATH_DECLARE(UNARY, cvti64tofprtp, , double, long)

/* float cvti64tofprtpf(long x)
 * long to float, rounded up. */
LANEMATH_DECLARE(UNARY, cvti64tofprtpf, , float, long)

/* double cvti64tofprtz(long x)
 * long to double, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvti64tofprtz, , double, long)

/* float cvti64tofprtzf(long x)
 * long to float, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvti64tofprtzf, , float, long)

/* double cvtu64tofprte(ulong x)
 * ulong to double, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtu64tofprte, , double, ulong)

/* float cvtu64tofprtef(ulong x)
 * ulong to float, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtu64tofprtef, , float, ulong)

/* double cvtu64tofprtn(ulong x)
 * ulong to double, rounded down. */
LANEMATH_DECLARE(UNARY, cvtu64tofprtn, , double, ulong)

/* float cvtu64tofprtnf(ulong x)
 * ulong to float, rounded down. */
LANEMATH_DECLARE(UNARY, cvtu64tofprtnf, , float, ulong)

/* double cvtu64tofprtp(ulong x)
 * ulong to double, rounded up. */
LANEMATH_DECLARE(UNARY, cvtu64tofprtp, , double, ulong)

/* float cvtu64tofprtpf(ulong x)
 * ulong to float, rounded up. */
LANEMATH_DECLARE(UNARY, cvtu64tofprtpf, , float, ulong)

/* double cvtu64tofprtz(ulong x)
 * ulong to double, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtu64tofprtz, , double, ulong)

/* float cvtu64tofprtzf(ulong x)
 * ulong to float, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtu64tofprtzf, , float, ulong)

/* float cvtfp64tofp32rte(double x)
 * double to float, rounded to nearest even. */
LANEMATH_DECLARE(UNARY, cvtfp64tofp32rte, , float, double)

/* float cvtfp64tofp32rtn(double x)
 * double to float, rounded down. */
LANEMATH_DECLARE(UNARY, cvtfp64tofp32rtn, , float, double)

/* float cvtfp64tofp32rtp(double x)
 * double to float, rounded up. */
LANEMATH_DECLARE(UNARY, cvtfp64tofp32rtp, , float, double)

/* float cvtfp64tofp32rtz(double x)
 * double to float, rounded toward zero. */
LANEMATH_DECLARE(UNARY, cvtfp64tofp32rtz, , float, double)

LANEMATH_END

#endif
