/* lanemath for C++, from C++11 on.
 *
 * lanemath::exp(x) and so on, for scalars and for the vectors of <lanemath/vector.hpp>; those of the C header
 * convert to them. An operation has the name that it has in C, without the f of single precision: the types tell.
 * Arguments after the first may be scalars. The accuracy variants are in the namespaces lanemath::native,
 * lanemath::half and lanemath::rm. Two results come as a structure with named members. Conversions are
 * lanemath::convert and lanemath::convert_sat.
 *
 * Results have the same bits as those of the C functions. */
#ifndef LANEMATH_LANEMATH_HPP
#define LANEMATH_LANEMATH_HPP

#include <lanemath/vector.hpp>

#pragma GCC system_header

namespace lanemath {

template <class V>
struct sine_and_cosine {
  V sine;
  V cosine;
};
template <class V, class W>
struct value_and_sign {
  V value;
  W sign;
};
template <class V>
struct fraction_and_floor {
  V fraction;
  V floor;
};
template <class V>
struct fraction_and_integer {
  V fraction;
  V integer;
};
template <class V, class W>
struct fraction_and_exponent {
  V fraction;
  W exponent;
};
template <class V, class W>
struct remainder_and_quotient {
  V remainder;
  W quotient;
};
template <class V>
struct quotient_and_remainder {
  V quotient;
  V remainder;
};

namespace detail {

template <class B>
struct both {
  B first, second;
};

namespace standard {
double exp(double) LANEMATH_NAMED("exp1");
lanemath_border_double2 exp(lanemath_border_double2) LANEMATH_NAMED("exp2");
double3_border exp(double3_border) LANEMATH_NAMED("exp3");
lanemath_wide_double4 exp(lanemath_wide_double4) LANEMATH_NAMED_WIDE("exp4");
lanemath_wide_double8 exp(lanemath_wide_double8) LANEMATH_NAMED_WIDE("exp8");
lanemath_wide_double16 exp(lanemath_wide_double16) LANEMATH_NAMED_WIDE("exp16");
float exp(float) LANEMATH_NAMED("expf1");
lanemath_border_float2 exp(lanemath_border_float2) LANEMATH_NAMED("expf2");
float3_border exp(float3_border) LANEMATH_NAMED("expf3");
lanemath_border_float4 exp(lanemath_border_float4) LANEMATH_NAMED("expf4");
lanemath_wide_float8 exp(lanemath_wide_float8) LANEMATH_NAMED_WIDE("expf8");
lanemath_wide_float16 exp(lanemath_wide_float16) LANEMATH_NAMED_WIDE("expf16");
double exp2(double) LANEMATH_NAMED("exp21");
lanemath_border_double2 exp2(lanemath_border_double2) LANEMATH_NAMED("exp22");
double3_border exp2(double3_border) LANEMATH_NAMED("exp23");
lanemath_wide_double4 exp2(lanemath_wide_double4) LANEMATH_NAMED_WIDE("exp24");
lanemath_wide_double8 exp2(lanemath_wide_double8) LANEMATH_NAMED_WIDE("exp28");
lanemath_wide_double16 exp2(lanemath_wide_double16) LANEMATH_NAMED_WIDE("exp216");
float exp2(float) LANEMATH_NAMED("exp2f1");
lanemath_border_float2 exp2(lanemath_border_float2) LANEMATH_NAMED("exp2f2");
float3_border exp2(float3_border) LANEMATH_NAMED("exp2f3");
lanemath_border_float4 exp2(lanemath_border_float4) LANEMATH_NAMED("exp2f4");
lanemath_wide_float8 exp2(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp2f8");
lanemath_wide_float16 exp2(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp2f16");
double exp10(double) LANEMATH_NAMED("exp101");
lanemath_border_double2 exp10(lanemath_border_double2) LANEMATH_NAMED("exp102");
double3_border exp10(double3_border) LANEMATH_NAMED("exp103");
lanemath_wide_double4 exp10(lanemath_wide_double4) LANEMATH_NAMED_WIDE("exp104");
lanemath_wide_double8 exp10(lanemath_wide_double8) LANEMATH_NAMED_WIDE("exp108");
lanemath_wide_double16 exp10(lanemath_wide_double16) LANEMATH_NAMED_WIDE("exp1016");
float exp10(float) LANEMATH_NAMED("exp10f1");
lanemath_border_float2 exp10(lanemath_border_float2) LANEMATH_NAMED("exp10f2");
float3_border exp10(float3_border) LANEMATH_NAMED("exp10f3");
lanemath_border_float4 exp10(lanemath_border_float4) LANEMATH_NAMED("exp10f4");
lanemath_wide_float8 exp10(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp10f8");
lanemath_wide_float16 exp10(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp10f16");
double expm1(double) LANEMATH_NAMED("expm11");
lanemath_border_double2 expm1(lanemath_border_double2) LANEMATH_NAMED("expm12");
double3_border expm1(double3_border) LANEMATH_NAMED("expm13");
lanemath_wide_double4 expm1(lanemath_wide_double4) LANEMATH_NAMED_WIDE("expm14");
lanemath_wide_double8 expm1(lanemath_wide_double8) LANEMATH_NAMED_WIDE("expm18");
lanemath_wide_double16 expm1(lanemath_wide_double16) LANEMATH_NAMED_WIDE("expm116");
float expm1(float) LANEMATH_NAMED("expm1f1");
lanemath_border_float2 expm1(lanemath_border_float2) LANEMATH_NAMED("expm1f2");
float3_border expm1(float3_border) LANEMATH_NAMED("expm1f3");
lanemath_border_float4 expm1(lanemath_border_float4) LANEMATH_NAMED("expm1f4");
lanemath_wide_float8 expm1(lanemath_wide_float8) LANEMATH_NAMED_WIDE("expm1f8");
lanemath_wide_float16 expm1(lanemath_wide_float16) LANEMATH_NAMED_WIDE("expm1f16");
double log(double) LANEMATH_NAMED("log1");
lanemath_border_double2 log(lanemath_border_double2) LANEMATH_NAMED("log2");
double3_border log(double3_border) LANEMATH_NAMED("log3");
lanemath_wide_double4 log(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log4");
lanemath_wide_double8 log(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log8");
lanemath_wide_double16 log(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log16");
float log(float) LANEMATH_NAMED("logf1");
lanemath_border_float2 log(lanemath_border_float2) LANEMATH_NAMED("logf2");
float3_border log(float3_border) LANEMATH_NAMED("logf3");
lanemath_border_float4 log(lanemath_border_float4) LANEMATH_NAMED("logf4");
lanemath_wide_float8 log(lanemath_wide_float8) LANEMATH_NAMED_WIDE("logf8");
lanemath_wide_float16 log(lanemath_wide_float16) LANEMATH_NAMED_WIDE("logf16");
double log2(double) LANEMATH_NAMED("log21");
lanemath_border_double2 log2(lanemath_border_double2) LANEMATH_NAMED("log22");
double3_border log2(double3_border) LANEMATH_NAMED("log23");
lanemath_wide_double4 log2(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log24");
lanemath_wide_double8 log2(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log28");
lanemath_wide_double16 log2(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log216");
float log2(float) LANEMATH_NAMED("log2f1");
lanemath_border_float2 log2(lanemath_border_float2) LANEMATH_NAMED("log2f2");
float3_border log2(float3_border) LANEMATH_NAMED("log2f3");
lanemath_border_float4 log2(lanemath_border_float4) LANEMATH_NAMED("log2f4");
lanemath_wide_float8 log2(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log2f8");
lanemath_wide_float16 log2(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log2f16");
double log10(double) LANEMATH_NAMED("log101");
lanemath_border_double2 log10(lanemath_border_double2) LANEMATH_NAMED("log102");
double3_border log10(double3_border) LANEMATH_NAMED("log103");
lanemath_wide_double4 log10(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log104");
lanemath_wide_double8 log10(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log108");
lanemath_wide_double16 log10(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log1016");
float log10(float) LANEMATH_NAMED("log10f1");
lanemath_border_float2 log10(lanemath_border_float2) LANEMATH_NAMED("log10f2");
float3_border log10(float3_border) LANEMATH_NAMED("log10f3");
lanemath_border_float4 log10(lanemath_border_float4) LANEMATH_NAMED("log10f4");
lanemath_wide_float8 log10(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log10f8");
lanemath_wide_float16 log10(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log10f16");
double log1p(double) LANEMATH_NAMED("log1p1");
lanemath_border_double2 log1p(lanemath_border_double2) LANEMATH_NAMED("log1p2");
double3_border log1p(double3_border) LANEMATH_NAMED("log1p3");
lanemath_wide_double4 log1p(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log1p4");
lanemath_wide_double8 log1p(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log1p8");
lanemath_wide_double16 log1p(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log1p16");
float log1p(float) LANEMATH_NAMED("log1pf1");
lanemath_border_float2 log1p(lanemath_border_float2) LANEMATH_NAMED("log1pf2");
float3_border log1p(float3_border) LANEMATH_NAMED("log1pf3");
lanemath_border_float4 log1p(lanemath_border_float4) LANEMATH_NAMED("log1pf4");
lanemath_wide_float8 log1p(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log1pf8");
lanemath_wide_float16 log1p(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log1pf16");
double pow(double, double) LANEMATH_NAMED("pow1");
lanemath_border_double2 pow(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("pow2");
double3_border pow(double3_border, double3_border) LANEMATH_NAMED("pow3");
lanemath_wide_double4 pow(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("pow4");
lanemath_wide_double8 pow(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("pow8");
lanemath_wide_double16 pow(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("pow16");
float pow(float, float) LANEMATH_NAMED("powf1");
lanemath_border_float2 pow(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("powf2");
float3_border pow(float3_border, float3_border) LANEMATH_NAMED("powf3");
lanemath_border_float4 pow(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("powf4");
lanemath_wide_float8 pow(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("powf8");
lanemath_wide_float16 pow(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("powf16");
double powr(double, double) LANEMATH_NAMED("powr1");
lanemath_border_double2 powr(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("powr2");
double3_border powr(double3_border, double3_border) LANEMATH_NAMED("powr3");
lanemath_wide_double4 powr(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("powr4");
lanemath_wide_double8 powr(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("powr8");
lanemath_wide_double16 powr(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("powr16");
float powr(float, float) LANEMATH_NAMED("powrf1");
lanemath_border_float2 powr(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("powrf2");
float3_border powr(float3_border, float3_border) LANEMATH_NAMED("powrf3");
lanemath_border_float4 powr(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("powrf4");
lanemath_wide_float8 powr(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("powrf8");
lanemath_wide_float16 powr(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("powrf16");
double pown(double, std::int32_t) LANEMATH_NAMED("pown1");
lanemath_border_double2 pown(lanemath_border_double2, lanemath_border_int2) LANEMATH_NAMED("pown2");
double3_border pown(double3_border, int3_border) LANEMATH_NAMED("pown3");
lanemath_wide_double4 pown(lanemath_wide_double4, lanemath_wide_int4) LANEMATH_NAMED_WIDE("pown4");
lanemath_wide_double8 pown(lanemath_wide_double8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("pown8");
lanemath_wide_double16 pown(lanemath_wide_double16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("pown16");
float pown(float, std::int32_t) LANEMATH_NAMED("pownf1");
lanemath_border_float2 pown(lanemath_border_float2, lanemath_border_int2) LANEMATH_NAMED("pownf2");
float3_border pown(float3_border, int3_border) LANEMATH_NAMED("pownf3");
lanemath_border_float4 pown(lanemath_border_float4, lanemath_border_int4) LANEMATH_NAMED("pownf4");
lanemath_wide_float8 pown(lanemath_wide_float8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("pownf8");
lanemath_wide_float16 pown(lanemath_wide_float16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("pownf16");
double rootn(double, std::int32_t) LANEMATH_NAMED("rootn1");
lanemath_border_double2 rootn(lanemath_border_double2, lanemath_border_int2) LANEMATH_NAMED("rootn2");
double3_border rootn(double3_border, int3_border) LANEMATH_NAMED("rootn3");
lanemath_wide_double4 rootn(lanemath_wide_double4, lanemath_wide_int4) LANEMATH_NAMED_WIDE("rootn4");
lanemath_wide_double8 rootn(lanemath_wide_double8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("rootn8");
lanemath_wide_double16 rootn(lanemath_wide_double16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("rootn16");
float rootn(float, std::int32_t) LANEMATH_NAMED("rootnf1");
lanemath_border_float2 rootn(lanemath_border_float2, lanemath_border_int2) LANEMATH_NAMED("rootnf2");
float3_border rootn(float3_border, int3_border) LANEMATH_NAMED("rootnf3");
lanemath_border_float4 rootn(lanemath_border_float4, lanemath_border_int4) LANEMATH_NAMED("rootnf4");
lanemath_wide_float8 rootn(lanemath_wide_float8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("rootnf8");
lanemath_wide_float16 rootn(lanemath_wide_float16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("rootnf16");
double sin(double) LANEMATH_NAMED("sin1");
lanemath_border_double2 sin(lanemath_border_double2) LANEMATH_NAMED("sin2");
double3_border sin(double3_border) LANEMATH_NAMED("sin3");
lanemath_wide_double4 sin(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sin4");
lanemath_wide_double8 sin(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sin8");
lanemath_wide_double16 sin(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sin16");
float sin(float) LANEMATH_NAMED("sinf1");
lanemath_border_float2 sin(lanemath_border_float2) LANEMATH_NAMED("sinf2");
float3_border sin(float3_border) LANEMATH_NAMED("sinf3");
lanemath_border_float4 sin(lanemath_border_float4) LANEMATH_NAMED("sinf4");
lanemath_wide_float8 sin(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinf8");
lanemath_wide_float16 sin(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinf16");
double cos(double) LANEMATH_NAMED("cos1");
lanemath_border_double2 cos(lanemath_border_double2) LANEMATH_NAMED("cos2");
double3_border cos(double3_border) LANEMATH_NAMED("cos3");
lanemath_wide_double4 cos(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cos4");
lanemath_wide_double8 cos(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cos8");
lanemath_wide_double16 cos(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cos16");
float cos(float) LANEMATH_NAMED("cosf1");
lanemath_border_float2 cos(lanemath_border_float2) LANEMATH_NAMED("cosf2");
float3_border cos(float3_border) LANEMATH_NAMED("cosf3");
lanemath_border_float4 cos(lanemath_border_float4) LANEMATH_NAMED("cosf4");
lanemath_wide_float8 cos(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cosf8");
lanemath_wide_float16 cos(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cosf16");
double sincos(double, void*) LANEMATH_NAMED("sincos1");
lanemath_border_double2 sincos(lanemath_border_double2, void*) LANEMATH_NAMED("sincos2");
double3_border sincos(double3_border, void*) LANEMATH_NAMED("sincos3");
lanemath_wide_double4 sincos(lanemath_wide_double4, void*) LANEMATH_NAMED_WIDE("sincos4");
lanemath_wide_double8 sincos(lanemath_wide_double8, void*) LANEMATH_NAMED_WIDE("sincos8");
lanemath_wide_double16 sincos(lanemath_wide_double16, void*) LANEMATH_NAMED_WIDE("sincos16");
float sincos(float, void*) LANEMATH_NAMED("sincosf1");
lanemath_border_float2 sincos(lanemath_border_float2, void*) LANEMATH_NAMED("sincosf2");
float3_border sincos(float3_border, void*) LANEMATH_NAMED("sincosf3");
lanemath_border_float4 sincos(lanemath_border_float4, void*) LANEMATH_NAMED("sincosf4");
lanemath_wide_float8 sincos(lanemath_wide_float8, void*) LANEMATH_NAMED_WIDE("sincosf8");
lanemath_wide_float16 sincos(lanemath_wide_float16, void*) LANEMATH_NAMED_WIDE("sincosf16");
both<double> sincosreg(double) LANEMATH_NAMED("sincosreg1");
both<lanemath_border_double2> sincosreg(lanemath_border_double2) LANEMATH_NAMED("sincosreg2");
both<double3_border> sincosreg(double3_border) LANEMATH_NAMED("sincosreg3");
both<lanemath_wide_double4> sincosreg(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sincosreg4");
both<lanemath_wide_double8> sincosreg(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sincosreg8");
both<lanemath_wide_double16> sincosreg(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sincosreg16");
both<float> sincosreg(float) LANEMATH_NAMED("sincosregf1");
both<lanemath_border_float2> sincosreg(lanemath_border_float2) LANEMATH_NAMED("sincosregf2");
both<float3_border> sincosreg(float3_border) LANEMATH_NAMED("sincosregf3");
both<lanemath_border_float4> sincosreg(lanemath_border_float4) LANEMATH_NAMED("sincosregf4");
both<lanemath_wide_float8> sincosreg(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sincosregf8");
both<lanemath_wide_float16> sincosreg(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sincosregf16");
double tan(double) LANEMATH_NAMED("tan1");
lanemath_border_double2 tan(lanemath_border_double2) LANEMATH_NAMED("tan2");
double3_border tan(double3_border) LANEMATH_NAMED("tan3");
lanemath_wide_double4 tan(lanemath_wide_double4) LANEMATH_NAMED_WIDE("tan4");
lanemath_wide_double8 tan(lanemath_wide_double8) LANEMATH_NAMED_WIDE("tan8");
lanemath_wide_double16 tan(lanemath_wide_double16) LANEMATH_NAMED_WIDE("tan16");
float tan(float) LANEMATH_NAMED("tanf1");
lanemath_border_float2 tan(lanemath_border_float2) LANEMATH_NAMED("tanf2");
float3_border tan(float3_border) LANEMATH_NAMED("tanf3");
lanemath_border_float4 tan(lanemath_border_float4) LANEMATH_NAMED("tanf4");
lanemath_wide_float8 tan(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanf8");
lanemath_wide_float16 tan(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanf16");
double sinpi(double) LANEMATH_NAMED("sinpi1");
lanemath_border_double2 sinpi(lanemath_border_double2) LANEMATH_NAMED("sinpi2");
double3_border sinpi(double3_border) LANEMATH_NAMED("sinpi3");
lanemath_wide_double4 sinpi(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sinpi4");
lanemath_wide_double8 sinpi(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sinpi8");
lanemath_wide_double16 sinpi(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sinpi16");
float sinpi(float) LANEMATH_NAMED("sinpif1");
lanemath_border_float2 sinpi(lanemath_border_float2) LANEMATH_NAMED("sinpif2");
float3_border sinpi(float3_border) LANEMATH_NAMED("sinpif3");
lanemath_border_float4 sinpi(lanemath_border_float4) LANEMATH_NAMED("sinpif4");
lanemath_wide_float8 sinpi(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinpif8");
lanemath_wide_float16 sinpi(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinpif16");
double cospi(double) LANEMATH_NAMED("cospi1");
lanemath_border_double2 cospi(lanemath_border_double2) LANEMATH_NAMED("cospi2");
double3_border cospi(double3_border) LANEMATH_NAMED("cospi3");
lanemath_wide_double4 cospi(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cospi4");
lanemath_wide_double8 cospi(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cospi8");
lanemath_wide_double16 cospi(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cospi16");
float cospi(float) LANEMATH_NAMED("cospif1");
lanemath_border_float2 cospi(lanemath_border_float2) LANEMATH_NAMED("cospif2");
float3_border cospi(float3_border) LANEMATH_NAMED("cospif3");
lanemath_border_float4 cospi(lanemath_border_float4) LANEMATH_NAMED("cospif4");
lanemath_wide_float8 cospi(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cospif8");
lanemath_wide_float16 cospi(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cospif16");
double tanpi(double) LANEMATH_NAMED("tanpi1");
lanemath_border_double2 tanpi(lanemath_border_double2) LANEMATH_NAMED("tanpi2");
double3_border tanpi(double3_border) LANEMATH_NAMED("tanpi3");
lanemath_wide_double4 tanpi(lanemath_wide_double4) LANEMATH_NAMED_WIDE("tanpi4");
lanemath_wide_double8 tanpi(lanemath_wide_double8) LANEMATH_NAMED_WIDE("tanpi8");
lanemath_wide_double16 tanpi(lanemath_wide_double16) LANEMATH_NAMED_WIDE("tanpi16");
float tanpi(float) LANEMATH_NAMED("tanpif1");
lanemath_border_float2 tanpi(lanemath_border_float2) LANEMATH_NAMED("tanpif2");
float3_border tanpi(float3_border) LANEMATH_NAMED("tanpif3");
lanemath_border_float4 tanpi(lanemath_border_float4) LANEMATH_NAMED("tanpif4");
lanemath_wide_float8 tanpi(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanpif8");
lanemath_wide_float16 tanpi(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanpif16");
double asin(double) LANEMATH_NAMED("asin1");
lanemath_border_double2 asin(lanemath_border_double2) LANEMATH_NAMED("asin2");
double3_border asin(double3_border) LANEMATH_NAMED("asin3");
lanemath_wide_double4 asin(lanemath_wide_double4) LANEMATH_NAMED_WIDE("asin4");
lanemath_wide_double8 asin(lanemath_wide_double8) LANEMATH_NAMED_WIDE("asin8");
lanemath_wide_double16 asin(lanemath_wide_double16) LANEMATH_NAMED_WIDE("asin16");
float asin(float) LANEMATH_NAMED("asinf1");
lanemath_border_float2 asin(lanemath_border_float2) LANEMATH_NAMED("asinf2");
float3_border asin(float3_border) LANEMATH_NAMED("asinf3");
lanemath_border_float4 asin(lanemath_border_float4) LANEMATH_NAMED("asinf4");
lanemath_wide_float8 asin(lanemath_wide_float8) LANEMATH_NAMED_WIDE("asinf8");
lanemath_wide_float16 asin(lanemath_wide_float16) LANEMATH_NAMED_WIDE("asinf16");
double acos(double) LANEMATH_NAMED("acos1");
lanemath_border_double2 acos(lanemath_border_double2) LANEMATH_NAMED("acos2");
double3_border acos(double3_border) LANEMATH_NAMED("acos3");
lanemath_wide_double4 acos(lanemath_wide_double4) LANEMATH_NAMED_WIDE("acos4");
lanemath_wide_double8 acos(lanemath_wide_double8) LANEMATH_NAMED_WIDE("acos8");
lanemath_wide_double16 acos(lanemath_wide_double16) LANEMATH_NAMED_WIDE("acos16");
float acos(float) LANEMATH_NAMED("acosf1");
lanemath_border_float2 acos(lanemath_border_float2) LANEMATH_NAMED("acosf2");
float3_border acos(float3_border) LANEMATH_NAMED("acosf3");
lanemath_border_float4 acos(lanemath_border_float4) LANEMATH_NAMED("acosf4");
lanemath_wide_float8 acos(lanemath_wide_float8) LANEMATH_NAMED_WIDE("acosf8");
lanemath_wide_float16 acos(lanemath_wide_float16) LANEMATH_NAMED_WIDE("acosf16");
double asinpi(double) LANEMATH_NAMED("asinpi1");
lanemath_border_double2 asinpi(lanemath_border_double2) LANEMATH_NAMED("asinpi2");
double3_border asinpi(double3_border) LANEMATH_NAMED("asinpi3");
lanemath_wide_double4 asinpi(lanemath_wide_double4) LANEMATH_NAMED_WIDE("asinpi4");
lanemath_wide_double8 asinpi(lanemath_wide_double8) LANEMATH_NAMED_WIDE("asinpi8");
lanemath_wide_double16 asinpi(lanemath_wide_double16) LANEMATH_NAMED_WIDE("asinpi16");
float asinpi(float) LANEMATH_NAMED("asinpif1");
lanemath_border_float2 asinpi(lanemath_border_float2) LANEMATH_NAMED("asinpif2");
float3_border asinpi(float3_border) LANEMATH_NAMED("asinpif3");
lanemath_border_float4 asinpi(lanemath_border_float4) LANEMATH_NAMED("asinpif4");
lanemath_wide_float8 asinpi(lanemath_wide_float8) LANEMATH_NAMED_WIDE("asinpif8");
lanemath_wide_float16 asinpi(lanemath_wide_float16) LANEMATH_NAMED_WIDE("asinpif16");
double acospi(double) LANEMATH_NAMED("acospi1");
lanemath_border_double2 acospi(lanemath_border_double2) LANEMATH_NAMED("acospi2");
double3_border acospi(double3_border) LANEMATH_NAMED("acospi3");
lanemath_wide_double4 acospi(lanemath_wide_double4) LANEMATH_NAMED_WIDE("acospi4");
lanemath_wide_double8 acospi(lanemath_wide_double8) LANEMATH_NAMED_WIDE("acospi8");
lanemath_wide_double16 acospi(lanemath_wide_double16) LANEMATH_NAMED_WIDE("acospi16");
float acospi(float) LANEMATH_NAMED("acospif1");
lanemath_border_float2 acospi(lanemath_border_float2) LANEMATH_NAMED("acospif2");
float3_border acospi(float3_border) LANEMATH_NAMED("acospif3");
lanemath_border_float4 acospi(lanemath_border_float4) LANEMATH_NAMED("acospif4");
lanemath_wide_float8 acospi(lanemath_wide_float8) LANEMATH_NAMED_WIDE("acospif8");
lanemath_wide_float16 acospi(lanemath_wide_float16) LANEMATH_NAMED_WIDE("acospif16");
double atan(double) LANEMATH_NAMED("atan1");
lanemath_border_double2 atan(lanemath_border_double2) LANEMATH_NAMED("atan2");
double3_border atan(double3_border) LANEMATH_NAMED("atan3");
lanemath_wide_double4 atan(lanemath_wide_double4) LANEMATH_NAMED_WIDE("atan4");
lanemath_wide_double8 atan(lanemath_wide_double8) LANEMATH_NAMED_WIDE("atan8");
lanemath_wide_double16 atan(lanemath_wide_double16) LANEMATH_NAMED_WIDE("atan16");
float atan(float) LANEMATH_NAMED("atanf1");
lanemath_border_float2 atan(lanemath_border_float2) LANEMATH_NAMED("atanf2");
float3_border atan(float3_border) LANEMATH_NAMED("atanf3");
lanemath_border_float4 atan(lanemath_border_float4) LANEMATH_NAMED("atanf4");
lanemath_wide_float8 atan(lanemath_wide_float8) LANEMATH_NAMED_WIDE("atanf8");
lanemath_wide_float16 atan(lanemath_wide_float16) LANEMATH_NAMED_WIDE("atanf16");
double atanpi(double) LANEMATH_NAMED("atanpi1");
lanemath_border_double2 atanpi(lanemath_border_double2) LANEMATH_NAMED("atanpi2");
double3_border atanpi(double3_border) LANEMATH_NAMED("atanpi3");
lanemath_wide_double4 atanpi(lanemath_wide_double4) LANEMATH_NAMED_WIDE("atanpi4");
lanemath_wide_double8 atanpi(lanemath_wide_double8) LANEMATH_NAMED_WIDE("atanpi8");
lanemath_wide_double16 atanpi(lanemath_wide_double16) LANEMATH_NAMED_WIDE("atanpi16");
float atanpi(float) LANEMATH_NAMED("atanpif1");
lanemath_border_float2 atanpi(lanemath_border_float2) LANEMATH_NAMED("atanpif2");
float3_border atanpi(float3_border) LANEMATH_NAMED("atanpif3");
lanemath_border_float4 atanpi(lanemath_border_float4) LANEMATH_NAMED("atanpif4");
lanemath_wide_float8 atanpi(lanemath_wide_float8) LANEMATH_NAMED_WIDE("atanpif8");
lanemath_wide_float16 atanpi(lanemath_wide_float16) LANEMATH_NAMED_WIDE("atanpif16");
double atan2(double, double) LANEMATH_NAMED("atan21");
lanemath_border_double2 atan2(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("atan22");
double3_border atan2(double3_border, double3_border) LANEMATH_NAMED("atan23");
lanemath_wide_double4 atan2(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("atan24");
lanemath_wide_double8 atan2(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("atan28");
lanemath_wide_double16 atan2(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("atan216");
float atan2(float, float) LANEMATH_NAMED("atan2f1");
lanemath_border_float2 atan2(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("atan2f2");
float3_border atan2(float3_border, float3_border) LANEMATH_NAMED("atan2f3");
lanemath_border_float4 atan2(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("atan2f4");
lanemath_wide_float8 atan2(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("atan2f8");
lanemath_wide_float16 atan2(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("atan2f16");
double atan2pi(double, double) LANEMATH_NAMED("atan2pi1");
lanemath_border_double2 atan2pi(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("atan2pi2");
double3_border atan2pi(double3_border, double3_border) LANEMATH_NAMED("atan2pi3");
lanemath_wide_double4 atan2pi(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("atan2pi4");
lanemath_wide_double8 atan2pi(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("atan2pi8");
lanemath_wide_double16 atan2pi(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("atan2pi16");
float atan2pi(float, float) LANEMATH_NAMED("atan2pif1");
lanemath_border_float2 atan2pi(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("atan2pif2");
float3_border atan2pi(float3_border, float3_border) LANEMATH_NAMED("atan2pif3");
lanemath_border_float4 atan2pi(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("atan2pif4");
lanemath_wide_float8 atan2pi(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("atan2pif8");
lanemath_wide_float16 atan2pi(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("atan2pif16");
double sinh(double) LANEMATH_NAMED("sinh1");
lanemath_border_double2 sinh(lanemath_border_double2) LANEMATH_NAMED("sinh2");
double3_border sinh(double3_border) LANEMATH_NAMED("sinh3");
lanemath_wide_double4 sinh(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sinh4");
lanemath_wide_double8 sinh(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sinh8");
lanemath_wide_double16 sinh(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sinh16");
float sinh(float) LANEMATH_NAMED("sinhf1");
lanemath_border_float2 sinh(lanemath_border_float2) LANEMATH_NAMED("sinhf2");
float3_border sinh(float3_border) LANEMATH_NAMED("sinhf3");
lanemath_border_float4 sinh(lanemath_border_float4) LANEMATH_NAMED("sinhf4");
lanemath_wide_float8 sinh(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinhf8");
lanemath_wide_float16 sinh(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinhf16");
double cosh(double) LANEMATH_NAMED("cosh1");
lanemath_border_double2 cosh(lanemath_border_double2) LANEMATH_NAMED("cosh2");
double3_border cosh(double3_border) LANEMATH_NAMED("cosh3");
lanemath_wide_double4 cosh(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cosh4");
lanemath_wide_double8 cosh(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cosh8");
lanemath_wide_double16 cosh(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cosh16");
float cosh(float) LANEMATH_NAMED("coshf1");
lanemath_border_float2 cosh(lanemath_border_float2) LANEMATH_NAMED("coshf2");
float3_border cosh(float3_border) LANEMATH_NAMED("coshf3");
lanemath_border_float4 cosh(lanemath_border_float4) LANEMATH_NAMED("coshf4");
lanemath_wide_float8 cosh(lanemath_wide_float8) LANEMATH_NAMED_WIDE("coshf8");
lanemath_wide_float16 cosh(lanemath_wide_float16) LANEMATH_NAMED_WIDE("coshf16");
double tanh(double) LANEMATH_NAMED("tanh1");
lanemath_border_double2 tanh(lanemath_border_double2) LANEMATH_NAMED("tanh2");
double3_border tanh(double3_border) LANEMATH_NAMED("tanh3");
lanemath_wide_double4 tanh(lanemath_wide_double4) LANEMATH_NAMED_WIDE("tanh4");
lanemath_wide_double8 tanh(lanemath_wide_double8) LANEMATH_NAMED_WIDE("tanh8");
lanemath_wide_double16 tanh(lanemath_wide_double16) LANEMATH_NAMED_WIDE("tanh16");
float tanh(float) LANEMATH_NAMED("tanhf1");
lanemath_border_float2 tanh(lanemath_border_float2) LANEMATH_NAMED("tanhf2");
float3_border tanh(float3_border) LANEMATH_NAMED("tanhf3");
lanemath_border_float4 tanh(lanemath_border_float4) LANEMATH_NAMED("tanhf4");
lanemath_wide_float8 tanh(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanhf8");
lanemath_wide_float16 tanh(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanhf16");
double asinh(double) LANEMATH_NAMED("asinh1");
lanemath_border_double2 asinh(lanemath_border_double2) LANEMATH_NAMED("asinh2");
double3_border asinh(double3_border) LANEMATH_NAMED("asinh3");
lanemath_wide_double4 asinh(lanemath_wide_double4) LANEMATH_NAMED_WIDE("asinh4");
lanemath_wide_double8 asinh(lanemath_wide_double8) LANEMATH_NAMED_WIDE("asinh8");
lanemath_wide_double16 asinh(lanemath_wide_double16) LANEMATH_NAMED_WIDE("asinh16");
float asinh(float) LANEMATH_NAMED("asinhf1");
lanemath_border_float2 asinh(lanemath_border_float2) LANEMATH_NAMED("asinhf2");
float3_border asinh(float3_border) LANEMATH_NAMED("asinhf3");
lanemath_border_float4 asinh(lanemath_border_float4) LANEMATH_NAMED("asinhf4");
lanemath_wide_float8 asinh(lanemath_wide_float8) LANEMATH_NAMED_WIDE("asinhf8");
lanemath_wide_float16 asinh(lanemath_wide_float16) LANEMATH_NAMED_WIDE("asinhf16");
double acosh(double) LANEMATH_NAMED("acosh1");
lanemath_border_double2 acosh(lanemath_border_double2) LANEMATH_NAMED("acosh2");
double3_border acosh(double3_border) LANEMATH_NAMED("acosh3");
lanemath_wide_double4 acosh(lanemath_wide_double4) LANEMATH_NAMED_WIDE("acosh4");
lanemath_wide_double8 acosh(lanemath_wide_double8) LANEMATH_NAMED_WIDE("acosh8");
lanemath_wide_double16 acosh(lanemath_wide_double16) LANEMATH_NAMED_WIDE("acosh16");
float acosh(float) LANEMATH_NAMED("acoshf1");
lanemath_border_float2 acosh(lanemath_border_float2) LANEMATH_NAMED("acoshf2");
float3_border acosh(float3_border) LANEMATH_NAMED("acoshf3");
lanemath_border_float4 acosh(lanemath_border_float4) LANEMATH_NAMED("acoshf4");
lanemath_wide_float8 acosh(lanemath_wide_float8) LANEMATH_NAMED_WIDE("acoshf8");
lanemath_wide_float16 acosh(lanemath_wide_float16) LANEMATH_NAMED_WIDE("acoshf16");
double atanh(double) LANEMATH_NAMED("atanh1");
lanemath_border_double2 atanh(lanemath_border_double2) LANEMATH_NAMED("atanh2");
double3_border atanh(double3_border) LANEMATH_NAMED("atanh3");
lanemath_wide_double4 atanh(lanemath_wide_double4) LANEMATH_NAMED_WIDE("atanh4");
lanemath_wide_double8 atanh(lanemath_wide_double8) LANEMATH_NAMED_WIDE("atanh8");
lanemath_wide_double16 atanh(lanemath_wide_double16) LANEMATH_NAMED_WIDE("atanh16");
float atanh(float) LANEMATH_NAMED("atanhf1");
lanemath_border_float2 atanh(lanemath_border_float2) LANEMATH_NAMED("atanhf2");
float3_border atanh(float3_border) LANEMATH_NAMED("atanhf3");
lanemath_border_float4 atanh(lanemath_border_float4) LANEMATH_NAMED("atanhf4");
lanemath_wide_float8 atanh(lanemath_wide_float8) LANEMATH_NAMED_WIDE("atanhf8");
lanemath_wide_float16 atanh(lanemath_wide_float16) LANEMATH_NAMED_WIDE("atanhf16");
double div(double, double) LANEMATH_NAMED("div1");
lanemath_border_double2 div(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("div2");
double3_border div(double3_border, double3_border) LANEMATH_NAMED("div3");
lanemath_wide_double4 div(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("div4");
lanemath_wide_double8 div(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("div8");
lanemath_wide_double16 div(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("div16");
float div(float, float) LANEMATH_NAMED("divf1");
lanemath_border_float2 div(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("divf2");
float3_border div(float3_border, float3_border) LANEMATH_NAMED("divf3");
lanemath_border_float4 div(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("divf4");
lanemath_wide_float8 div(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("divf8");
lanemath_wide_float16 div(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("divf16");
double inv(double) LANEMATH_NAMED("inv1");
lanemath_border_double2 inv(lanemath_border_double2) LANEMATH_NAMED("inv2");
double3_border inv(double3_border) LANEMATH_NAMED("inv3");
lanemath_wide_double4 inv(lanemath_wide_double4) LANEMATH_NAMED_WIDE("inv4");
lanemath_wide_double8 inv(lanemath_wide_double8) LANEMATH_NAMED_WIDE("inv8");
lanemath_wide_double16 inv(lanemath_wide_double16) LANEMATH_NAMED_WIDE("inv16");
float inv(float) LANEMATH_NAMED("invf1");
lanemath_border_float2 inv(lanemath_border_float2) LANEMATH_NAMED("invf2");
float3_border inv(float3_border) LANEMATH_NAMED("invf3");
lanemath_border_float4 inv(lanemath_border_float4) LANEMATH_NAMED("invf4");
lanemath_wide_float8 inv(lanemath_wide_float8) LANEMATH_NAMED_WIDE("invf8");
lanemath_wide_float16 inv(lanemath_wide_float16) LANEMATH_NAMED_WIDE("invf16");
double sqrt(double) LANEMATH_NAMED("sqrt1");
lanemath_border_double2 sqrt(lanemath_border_double2) LANEMATH_NAMED("sqrt2");
double3_border sqrt(double3_border) LANEMATH_NAMED("sqrt3");
lanemath_wide_double4 sqrt(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sqrt4");
lanemath_wide_double8 sqrt(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sqrt8");
lanemath_wide_double16 sqrt(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sqrt16");
float sqrt(float) LANEMATH_NAMED("sqrtf1");
lanemath_border_float2 sqrt(lanemath_border_float2) LANEMATH_NAMED("sqrtf2");
float3_border sqrt(float3_border) LANEMATH_NAMED("sqrtf3");
lanemath_border_float4 sqrt(lanemath_border_float4) LANEMATH_NAMED("sqrtf4");
lanemath_wide_float8 sqrt(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sqrtf8");
lanemath_wide_float16 sqrt(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sqrtf16");
double rsqrt(double) LANEMATH_NAMED("rsqrt1");
lanemath_border_double2 rsqrt(lanemath_border_double2) LANEMATH_NAMED("rsqrt2");
double3_border rsqrt(double3_border) LANEMATH_NAMED("rsqrt3");
lanemath_wide_double4 rsqrt(lanemath_wide_double4) LANEMATH_NAMED_WIDE("rsqrt4");
lanemath_wide_double8 rsqrt(lanemath_wide_double8) LANEMATH_NAMED_WIDE("rsqrt8");
lanemath_wide_double16 rsqrt(lanemath_wide_double16) LANEMATH_NAMED_WIDE("rsqrt16");
float rsqrt(float) LANEMATH_NAMED("rsqrtf1");
lanemath_border_float2 rsqrt(lanemath_border_float2) LANEMATH_NAMED("rsqrtf2");
float3_border rsqrt(float3_border) LANEMATH_NAMED("rsqrtf3");
lanemath_border_float4 rsqrt(lanemath_border_float4) LANEMATH_NAMED("rsqrtf4");
lanemath_wide_float8 rsqrt(lanemath_wide_float8) LANEMATH_NAMED_WIDE("rsqrtf8");
lanemath_wide_float16 rsqrt(lanemath_wide_float16) LANEMATH_NAMED_WIDE("rsqrtf16");
double cbrt(double) LANEMATH_NAMED("cbrt1");
lanemath_border_double2 cbrt(lanemath_border_double2) LANEMATH_NAMED("cbrt2");
double3_border cbrt(double3_border) LANEMATH_NAMED("cbrt3");
lanemath_wide_double4 cbrt(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cbrt4");
lanemath_wide_double8 cbrt(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cbrt8");
lanemath_wide_double16 cbrt(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cbrt16");
float cbrt(float) LANEMATH_NAMED("cbrtf1");
lanemath_border_float2 cbrt(lanemath_border_float2) LANEMATH_NAMED("cbrtf2");
float3_border cbrt(float3_border) LANEMATH_NAMED("cbrtf3");
lanemath_border_float4 cbrt(lanemath_border_float4) LANEMATH_NAMED("cbrtf4");
lanemath_wide_float8 cbrt(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cbrtf8");
lanemath_wide_float16 cbrt(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cbrtf16");
double rcbrt(double) LANEMATH_NAMED("rcbrt1");
lanemath_border_double2 rcbrt(lanemath_border_double2) LANEMATH_NAMED("rcbrt2");
double3_border rcbrt(double3_border) LANEMATH_NAMED("rcbrt3");
lanemath_wide_double4 rcbrt(lanemath_wide_double4) LANEMATH_NAMED_WIDE("rcbrt4");
lanemath_wide_double8 rcbrt(lanemath_wide_double8) LANEMATH_NAMED_WIDE("rcbrt8");
lanemath_wide_double16 rcbrt(lanemath_wide_double16) LANEMATH_NAMED_WIDE("rcbrt16");
float rcbrt(float) LANEMATH_NAMED("rcbrtf1");
lanemath_border_float2 rcbrt(lanemath_border_float2) LANEMATH_NAMED("rcbrtf2");
float3_border rcbrt(float3_border) LANEMATH_NAMED("rcbrtf3");
lanemath_border_float4 rcbrt(lanemath_border_float4) LANEMATH_NAMED("rcbrtf4");
lanemath_wide_float8 rcbrt(lanemath_wide_float8) LANEMATH_NAMED_WIDE("rcbrtf8");
lanemath_wide_float16 rcbrt(lanemath_wide_float16) LANEMATH_NAMED_WIDE("rcbrtf16");
double hypot(double, double) LANEMATH_NAMED("hypot1");
lanemath_border_double2 hypot(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("hypot2");
double3_border hypot(double3_border, double3_border) LANEMATH_NAMED("hypot3");
lanemath_wide_double4 hypot(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("hypot4");
lanemath_wide_double8 hypot(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("hypot8");
lanemath_wide_double16 hypot(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("hypot16");
float hypot(float, float) LANEMATH_NAMED("hypotf1");
lanemath_border_float2 hypot(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("hypotf2");
float3_border hypot(float3_border, float3_border) LANEMATH_NAMED("hypotf3");
lanemath_border_float4 hypot(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("hypotf4");
lanemath_wide_float8 hypot(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("hypotf8");
lanemath_wide_float16 hypot(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("hypotf16");
double erf(double) LANEMATH_NAMED("erf1");
lanemath_border_double2 erf(lanemath_border_double2) LANEMATH_NAMED("erf2");
double3_border erf(double3_border) LANEMATH_NAMED("erf3");
lanemath_wide_double4 erf(lanemath_wide_double4) LANEMATH_NAMED_WIDE("erf4");
lanemath_wide_double8 erf(lanemath_wide_double8) LANEMATH_NAMED_WIDE("erf8");
lanemath_wide_double16 erf(lanemath_wide_double16) LANEMATH_NAMED_WIDE("erf16");
float erf(float) LANEMATH_NAMED("erff1");
lanemath_border_float2 erf(lanemath_border_float2) LANEMATH_NAMED("erff2");
float3_border erf(float3_border) LANEMATH_NAMED("erff3");
lanemath_border_float4 erf(lanemath_border_float4) LANEMATH_NAMED("erff4");
lanemath_wide_float8 erf(lanemath_wide_float8) LANEMATH_NAMED_WIDE("erff8");
lanemath_wide_float16 erf(lanemath_wide_float16) LANEMATH_NAMED_WIDE("erff16");
double erfc(double) LANEMATH_NAMED("erfc1");
lanemath_border_double2 erfc(lanemath_border_double2) LANEMATH_NAMED("erfc2");
double3_border erfc(double3_border) LANEMATH_NAMED("erfc3");
lanemath_wide_double4 erfc(lanemath_wide_double4) LANEMATH_NAMED_WIDE("erfc4");
lanemath_wide_double8 erfc(lanemath_wide_double8) LANEMATH_NAMED_WIDE("erfc8");
lanemath_wide_double16 erfc(lanemath_wide_double16) LANEMATH_NAMED_WIDE("erfc16");
float erfc(float) LANEMATH_NAMED("erfcf1");
lanemath_border_float2 erfc(lanemath_border_float2) LANEMATH_NAMED("erfcf2");
float3_border erfc(float3_border) LANEMATH_NAMED("erfcf3");
lanemath_border_float4 erfc(lanemath_border_float4) LANEMATH_NAMED("erfcf4");
lanemath_wide_float8 erfc(lanemath_wide_float8) LANEMATH_NAMED_WIDE("erfcf8");
lanemath_wide_float16 erfc(lanemath_wide_float16) LANEMATH_NAMED_WIDE("erfcf16");
double lgamma(double) LANEMATH_NAMED("lgamma1");
lanemath_border_double2 lgamma(lanemath_border_double2) LANEMATH_NAMED("lgamma2");
double3_border lgamma(double3_border) LANEMATH_NAMED("lgamma3");
lanemath_border_double4 lgamma(lanemath_border_double4) LANEMATH_NAMED("lgamma4");
lanemath_border_double8 lgamma(lanemath_border_double8) LANEMATH_NAMED("lgamma8");
lanemath_border_double16 lgamma(lanemath_border_double16) LANEMATH_NAMED("lgamma16");
float lgamma(float) LANEMATH_NAMED("lgammaf1");
lanemath_border_float2 lgamma(lanemath_border_float2) LANEMATH_NAMED("lgammaf2");
float3_border lgamma(float3_border) LANEMATH_NAMED("lgammaf3");
lanemath_border_float4 lgamma(lanemath_border_float4) LANEMATH_NAMED("lgammaf4");
lanemath_border_float8 lgamma(lanemath_border_float8) LANEMATH_NAMED("lgammaf8");
lanemath_border_float16 lgamma(lanemath_border_float16) LANEMATH_NAMED("lgammaf16");
double lgammar(double, void*) LANEMATH_NAMED("lgammar1");
lanemath_border_double2 lgammar(lanemath_border_double2, void*) LANEMATH_NAMED("lgammar2");
double3_border lgammar(double3_border, void*) LANEMATH_NAMED("lgammar3");
lanemath_border_double4 lgammar(lanemath_border_double4, void*) LANEMATH_NAMED("lgammar4");
lanemath_border_double8 lgammar(lanemath_border_double8, void*) LANEMATH_NAMED("lgammar8");
lanemath_border_double16 lgammar(lanemath_border_double16, void*) LANEMATH_NAMED("lgammar16");
float lgammar(float, void*) LANEMATH_NAMED("lgammarf1");
lanemath_border_float2 lgammar(lanemath_border_float2, void*) LANEMATH_NAMED("lgammarf2");
float3_border lgammar(float3_border, void*) LANEMATH_NAMED("lgammarf3");
lanemath_border_float4 lgammar(lanemath_border_float4, void*) LANEMATH_NAMED("lgammarf4");
lanemath_border_float8 lgammar(lanemath_border_float8, void*) LANEMATH_NAMED("lgammarf8");
lanemath_border_float16 lgammar(lanemath_border_float16, void*) LANEMATH_NAMED("lgammarf16");
double tgamma(double) LANEMATH_NAMED("tgamma1");
lanemath_border_double2 tgamma(lanemath_border_double2) LANEMATH_NAMED("tgamma2");
double3_border tgamma(double3_border) LANEMATH_NAMED("tgamma3");
lanemath_border_double4 tgamma(lanemath_border_double4) LANEMATH_NAMED("tgamma4");
lanemath_border_double8 tgamma(lanemath_border_double8) LANEMATH_NAMED("tgamma8");
lanemath_border_double16 tgamma(lanemath_border_double16) LANEMATH_NAMED("tgamma16");
float tgamma(float) LANEMATH_NAMED("tgammaf1");
lanemath_border_float2 tgamma(lanemath_border_float2) LANEMATH_NAMED("tgammaf2");
float3_border tgamma(float3_border) LANEMATH_NAMED("tgammaf3");
lanemath_border_float4 tgamma(lanemath_border_float4) LANEMATH_NAMED("tgammaf4");
lanemath_border_float8 tgamma(lanemath_border_float8) LANEMATH_NAMED("tgammaf8");
lanemath_border_float16 tgamma(lanemath_border_float16) LANEMATH_NAMED("tgammaf16");
double ceil(double) LANEMATH_NAMED("ceil1");
lanemath_border_double2 ceil(lanemath_border_double2) LANEMATH_NAMED("ceil2");
double3_border ceil(double3_border) LANEMATH_NAMED("ceil3");
lanemath_wide_double4 ceil(lanemath_wide_double4) LANEMATH_NAMED_WIDE("ceil4");
lanemath_wide_double8 ceil(lanemath_wide_double8) LANEMATH_NAMED_WIDE("ceil8");
lanemath_wide_double16 ceil(lanemath_wide_double16) LANEMATH_NAMED_WIDE("ceil16");
float ceil(float) LANEMATH_NAMED("ceilf1");
lanemath_border_float2 ceil(lanemath_border_float2) LANEMATH_NAMED("ceilf2");
float3_border ceil(float3_border) LANEMATH_NAMED("ceilf3");
lanemath_border_float4 ceil(lanemath_border_float4) LANEMATH_NAMED("ceilf4");
lanemath_wide_float8 ceil(lanemath_wide_float8) LANEMATH_NAMED_WIDE("ceilf8");
lanemath_wide_float16 ceil(lanemath_wide_float16) LANEMATH_NAMED_WIDE("ceilf16");
double floor(double) LANEMATH_NAMED("floor1");
lanemath_border_double2 floor(lanemath_border_double2) LANEMATH_NAMED("floor2");
double3_border floor(double3_border) LANEMATH_NAMED("floor3");
lanemath_wide_double4 floor(lanemath_wide_double4) LANEMATH_NAMED_WIDE("floor4");
lanemath_wide_double8 floor(lanemath_wide_double8) LANEMATH_NAMED_WIDE("floor8");
lanemath_wide_double16 floor(lanemath_wide_double16) LANEMATH_NAMED_WIDE("floor16");
float floor(float) LANEMATH_NAMED("floorf1");
lanemath_border_float2 floor(lanemath_border_float2) LANEMATH_NAMED("floorf2");
float3_border floor(float3_border) LANEMATH_NAMED("floorf3");
lanemath_border_float4 floor(lanemath_border_float4) LANEMATH_NAMED("floorf4");
lanemath_wide_float8 floor(lanemath_wide_float8) LANEMATH_NAMED_WIDE("floorf8");
lanemath_wide_float16 floor(lanemath_wide_float16) LANEMATH_NAMED_WIDE("floorf16");
double trunc(double) LANEMATH_NAMED("trunc1");
lanemath_border_double2 trunc(lanemath_border_double2) LANEMATH_NAMED("trunc2");
double3_border trunc(double3_border) LANEMATH_NAMED("trunc3");
lanemath_wide_double4 trunc(lanemath_wide_double4) LANEMATH_NAMED_WIDE("trunc4");
lanemath_wide_double8 trunc(lanemath_wide_double8) LANEMATH_NAMED_WIDE("trunc8");
lanemath_wide_double16 trunc(lanemath_wide_double16) LANEMATH_NAMED_WIDE("trunc16");
float trunc(float) LANEMATH_NAMED("truncf1");
lanemath_border_float2 trunc(lanemath_border_float2) LANEMATH_NAMED("truncf2");
float3_border trunc(float3_border) LANEMATH_NAMED("truncf3");
lanemath_border_float4 trunc(lanemath_border_float4) LANEMATH_NAMED("truncf4");
lanemath_wide_float8 trunc(lanemath_wide_float8) LANEMATH_NAMED_WIDE("truncf8");
lanemath_wide_float16 trunc(lanemath_wide_float16) LANEMATH_NAMED_WIDE("truncf16");
double rint(double) LANEMATH_NAMED("rint1");
lanemath_border_double2 rint(lanemath_border_double2) LANEMATH_NAMED("rint2");
double3_border rint(double3_border) LANEMATH_NAMED("rint3");
lanemath_wide_double4 rint(lanemath_wide_double4) LANEMATH_NAMED_WIDE("rint4");
lanemath_wide_double8 rint(lanemath_wide_double8) LANEMATH_NAMED_WIDE("rint8");
lanemath_wide_double16 rint(lanemath_wide_double16) LANEMATH_NAMED_WIDE("rint16");
float rint(float) LANEMATH_NAMED("rintf1");
lanemath_border_float2 rint(lanemath_border_float2) LANEMATH_NAMED("rintf2");
float3_border rint(float3_border) LANEMATH_NAMED("rintf3");
lanemath_border_float4 rint(lanemath_border_float4) LANEMATH_NAMED("rintf4");
lanemath_wide_float8 rint(lanemath_wide_float8) LANEMATH_NAMED_WIDE("rintf8");
lanemath_wide_float16 rint(lanemath_wide_float16) LANEMATH_NAMED_WIDE("rintf16");
double nearbyint(double) LANEMATH_NAMED("nearbyint1");
lanemath_border_double2 nearbyint(lanemath_border_double2) LANEMATH_NAMED("nearbyint2");
double3_border nearbyint(double3_border) LANEMATH_NAMED("nearbyint3");
lanemath_wide_double4 nearbyint(lanemath_wide_double4) LANEMATH_NAMED_WIDE("nearbyint4");
lanemath_wide_double8 nearbyint(lanemath_wide_double8) LANEMATH_NAMED_WIDE("nearbyint8");
lanemath_wide_double16 nearbyint(lanemath_wide_double16) LANEMATH_NAMED_WIDE("nearbyint16");
float nearbyint(float) LANEMATH_NAMED("nearbyintf1");
lanemath_border_float2 nearbyint(lanemath_border_float2) LANEMATH_NAMED("nearbyintf2");
float3_border nearbyint(float3_border) LANEMATH_NAMED("nearbyintf3");
lanemath_border_float4 nearbyint(lanemath_border_float4) LANEMATH_NAMED("nearbyintf4");
lanemath_wide_float8 nearbyint(lanemath_wide_float8) LANEMATH_NAMED_WIDE("nearbyintf8");
lanemath_wide_float16 nearbyint(lanemath_wide_float16) LANEMATH_NAMED_WIDE("nearbyintf16");
double round(double) LANEMATH_NAMED("round1");
lanemath_border_double2 round(lanemath_border_double2) LANEMATH_NAMED("round2");
double3_border round(double3_border) LANEMATH_NAMED("round3");
lanemath_wide_double4 round(lanemath_wide_double4) LANEMATH_NAMED_WIDE("round4");
lanemath_wide_double8 round(lanemath_wide_double8) LANEMATH_NAMED_WIDE("round8");
lanemath_wide_double16 round(lanemath_wide_double16) LANEMATH_NAMED_WIDE("round16");
float round(float) LANEMATH_NAMED("roundf1");
lanemath_border_float2 round(lanemath_border_float2) LANEMATH_NAMED("roundf2");
float3_border round(float3_border) LANEMATH_NAMED("roundf3");
lanemath_border_float4 round(lanemath_border_float4) LANEMATH_NAMED("roundf4");
lanemath_wide_float8 round(lanemath_wide_float8) LANEMATH_NAMED_WIDE("roundf8");
lanemath_wide_float16 round(lanemath_wide_float16) LANEMATH_NAMED_WIDE("roundf16");
double fabs(double) LANEMATH_NAMED("fabs1");
lanemath_border_double2 fabs(lanemath_border_double2) LANEMATH_NAMED("fabs2");
double3_border fabs(double3_border) LANEMATH_NAMED("fabs3");
lanemath_wide_double4 fabs(lanemath_wide_double4) LANEMATH_NAMED_WIDE("fabs4");
lanemath_wide_double8 fabs(lanemath_wide_double8) LANEMATH_NAMED_WIDE("fabs8");
lanemath_wide_double16 fabs(lanemath_wide_double16) LANEMATH_NAMED_WIDE("fabs16");
float fabs(float) LANEMATH_NAMED("fabsf1");
lanemath_border_float2 fabs(lanemath_border_float2) LANEMATH_NAMED("fabsf2");
float3_border fabs(float3_border) LANEMATH_NAMED("fabsf3");
lanemath_border_float4 fabs(lanemath_border_float4) LANEMATH_NAMED("fabsf4");
lanemath_wide_float8 fabs(lanemath_wide_float8) LANEMATH_NAMED_WIDE("fabsf8");
lanemath_wide_float16 fabs(lanemath_wide_float16) LANEMATH_NAMED_WIDE("fabsf16");
double copysign(double, double) LANEMATH_NAMED("copysign1");
lanemath_border_double2 copysign(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("copysign2");
double3_border copysign(double3_border, double3_border) LANEMATH_NAMED("copysign3");
lanemath_wide_double4 copysign(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("copysign4");
lanemath_wide_double8 copysign(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("copysign8");
lanemath_wide_double16 copysign(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("copysign16");
float copysign(float, float) LANEMATH_NAMED("copysignf1");
lanemath_border_float2 copysign(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("copysignf2");
float3_border copysign(float3_border, float3_border) LANEMATH_NAMED("copysignf3");
lanemath_border_float4 copysign(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("copysignf4");
lanemath_wide_float8 copysign(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("copysignf8");
lanemath_wide_float16 copysign(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("copysignf16");
double fdim(double, double) LANEMATH_NAMED("fdim1");
lanemath_border_double2 fdim(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("fdim2");
double3_border fdim(double3_border, double3_border) LANEMATH_NAMED("fdim3");
lanemath_wide_double4 fdim(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("fdim4");
lanemath_wide_double8 fdim(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("fdim8");
lanemath_wide_double16 fdim(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("fdim16");
float fdim(float, float) LANEMATH_NAMED("fdimf1");
lanemath_border_float2 fdim(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("fdimf2");
float3_border fdim(float3_border, float3_border) LANEMATH_NAMED("fdimf3");
lanemath_border_float4 fdim(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("fdimf4");
lanemath_wide_float8 fdim(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("fdimf8");
lanemath_wide_float16 fdim(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("fdimf16");
double fmax(double, double) LANEMATH_NAMED("fmax1");
lanemath_border_double2 fmax(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("fmax2");
double3_border fmax(double3_border, double3_border) LANEMATH_NAMED("fmax3");
lanemath_wide_double4 fmax(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("fmax4");
lanemath_wide_double8 fmax(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("fmax8");
lanemath_wide_double16 fmax(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("fmax16");
float fmax(float, float) LANEMATH_NAMED("fmaxf1");
lanemath_border_float2 fmax(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("fmaxf2");
float3_border fmax(float3_border, float3_border) LANEMATH_NAMED("fmaxf3");
lanemath_border_float4 fmax(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("fmaxf4");
lanemath_wide_float8 fmax(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("fmaxf8");
lanemath_wide_float16 fmax(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("fmaxf16");
double fmin(double, double) LANEMATH_NAMED("fmin1");
lanemath_border_double2 fmin(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("fmin2");
double3_border fmin(double3_border, double3_border) LANEMATH_NAMED("fmin3");
lanemath_wide_double4 fmin(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("fmin4");
lanemath_wide_double8 fmin(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("fmin8");
lanemath_wide_double16 fmin(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("fmin16");
float fmin(float, float) LANEMATH_NAMED("fminf1");
lanemath_border_float2 fmin(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("fminf2");
float3_border fmin(float3_border, float3_border) LANEMATH_NAMED("fminf3");
lanemath_border_float4 fmin(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("fminf4");
lanemath_wide_float8 fmin(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("fminf8");
lanemath_wide_float16 fmin(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("fminf16");
double maxmag(double, double) LANEMATH_NAMED("maxmag1");
lanemath_border_double2 maxmag(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("maxmag2");
double3_border maxmag(double3_border, double3_border) LANEMATH_NAMED("maxmag3");
lanemath_wide_double4 maxmag(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("maxmag4");
lanemath_wide_double8 maxmag(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("maxmag8");
lanemath_wide_double16 maxmag(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("maxmag16");
float maxmag(float, float) LANEMATH_NAMED("maxmagf1");
lanemath_border_float2 maxmag(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("maxmagf2");
float3_border maxmag(float3_border, float3_border) LANEMATH_NAMED("maxmagf3");
lanemath_border_float4 maxmag(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("maxmagf4");
lanemath_wide_float8 maxmag(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("maxmagf8");
lanemath_wide_float16 maxmag(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("maxmagf16");
double minmag(double, double) LANEMATH_NAMED("minmag1");
lanemath_border_double2 minmag(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("minmag2");
double3_border minmag(double3_border, double3_border) LANEMATH_NAMED("minmag3");
lanemath_wide_double4 minmag(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("minmag4");
lanemath_wide_double8 minmag(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("minmag8");
lanemath_wide_double16 minmag(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("minmag16");
float minmag(float, float) LANEMATH_NAMED("minmagf1");
lanemath_border_float2 minmag(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("minmagf2");
float3_border minmag(float3_border, float3_border) LANEMATH_NAMED("minmagf3");
lanemath_border_float4 minmag(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("minmagf4");
lanemath_wide_float8 minmag(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("minmagf8");
lanemath_wide_float16 minmag(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("minmagf16");
double fract(double, void*) LANEMATH_NAMED("fract1");
lanemath_border_double2 fract(lanemath_border_double2, void*) LANEMATH_NAMED("fract2");
double3_border fract(double3_border, void*) LANEMATH_NAMED("fract3");
lanemath_wide_double4 fract(lanemath_wide_double4, void*) LANEMATH_NAMED_WIDE("fract4");
lanemath_wide_double8 fract(lanemath_wide_double8, void*) LANEMATH_NAMED_WIDE("fract8");
lanemath_wide_double16 fract(lanemath_wide_double16, void*) LANEMATH_NAMED_WIDE("fract16");
float fract(float, void*) LANEMATH_NAMED("fractf1");
lanemath_border_float2 fract(lanemath_border_float2, void*) LANEMATH_NAMED("fractf2");
float3_border fract(float3_border, void*) LANEMATH_NAMED("fractf3");
lanemath_border_float4 fract(lanemath_border_float4, void*) LANEMATH_NAMED("fractf4");
lanemath_wide_float8 fract(lanemath_wide_float8, void*) LANEMATH_NAMED_WIDE("fractf8");
lanemath_wide_float16 fract(lanemath_wide_float16, void*) LANEMATH_NAMED_WIDE("fractf16");
double modf(double, void*) LANEMATH_NAMED("modf1");
lanemath_border_double2 modf(lanemath_border_double2, void*) LANEMATH_NAMED("modf2");
double3_border modf(double3_border, void*) LANEMATH_NAMED("modf3");
lanemath_wide_double4 modf(lanemath_wide_double4, void*) LANEMATH_NAMED_WIDE("modf4");
lanemath_wide_double8 modf(lanemath_wide_double8, void*) LANEMATH_NAMED_WIDE("modf8");
lanemath_wide_double16 modf(lanemath_wide_double16, void*) LANEMATH_NAMED_WIDE("modf16");
float modf(float, void*) LANEMATH_NAMED("modff1");
lanemath_border_float2 modf(lanemath_border_float2, void*) LANEMATH_NAMED("modff2");
float3_border modf(float3_border, void*) LANEMATH_NAMED("modff3");
lanemath_border_float4 modf(lanemath_border_float4, void*) LANEMATH_NAMED("modff4");
lanemath_wide_float8 modf(lanemath_wide_float8, void*) LANEMATH_NAMED_WIDE("modff8");
lanemath_wide_float16 modf(lanemath_wide_float16, void*) LANEMATH_NAMED_WIDE("modff16");
double frexp(double, void*) LANEMATH_NAMED("frexp1");
lanemath_border_double2 frexp(lanemath_border_double2, void*) LANEMATH_NAMED("frexp2");
double3_border frexp(double3_border, void*) LANEMATH_NAMED("frexp3");
lanemath_wide_double4 frexp(lanemath_wide_double4, void*) LANEMATH_NAMED_WIDE("frexp4");
lanemath_wide_double8 frexp(lanemath_wide_double8, void*) LANEMATH_NAMED_WIDE("frexp8");
lanemath_wide_double16 frexp(lanemath_wide_double16, void*) LANEMATH_NAMED_WIDE("frexp16");
float frexp(float, void*) LANEMATH_NAMED("frexpf1");
lanemath_border_float2 frexp(lanemath_border_float2, void*) LANEMATH_NAMED("frexpf2");
float3_border frexp(float3_border, void*) LANEMATH_NAMED("frexpf3");
lanemath_border_float4 frexp(lanemath_border_float4, void*) LANEMATH_NAMED("frexpf4");
lanemath_wide_float8 frexp(lanemath_wide_float8, void*) LANEMATH_NAMED_WIDE("frexpf8");
lanemath_wide_float16 frexp(lanemath_wide_float16, void*) LANEMATH_NAMED_WIDE("frexpf16");
double ldexp(double, std::int32_t) LANEMATH_NAMED("ldexp1");
lanemath_border_double2 ldexp(lanemath_border_double2, lanemath_border_int2) LANEMATH_NAMED("ldexp2");
double3_border ldexp(double3_border, int3_border) LANEMATH_NAMED("ldexp3");
lanemath_wide_double4 ldexp(lanemath_wide_double4, lanemath_wide_int4) LANEMATH_NAMED_WIDE("ldexp4");
lanemath_wide_double8 ldexp(lanemath_wide_double8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("ldexp8");
lanemath_wide_double16 ldexp(lanemath_wide_double16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("ldexp16");
float ldexp(float, std::int32_t) LANEMATH_NAMED("ldexpf1");
lanemath_border_float2 ldexp(lanemath_border_float2, lanemath_border_int2) LANEMATH_NAMED("ldexpf2");
float3_border ldexp(float3_border, int3_border) LANEMATH_NAMED("ldexpf3");
lanemath_border_float4 ldexp(lanemath_border_float4, lanemath_border_int4) LANEMATH_NAMED("ldexpf4");
lanemath_wide_float8 ldexp(lanemath_wide_float8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("ldexpf8");
lanemath_wide_float16 ldexp(lanemath_wide_float16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("ldexpf16");
std::int32_t ilogb(double) LANEMATH_NAMED("ilogb1");
lanemath_border_int2 ilogb(lanemath_border_double2) LANEMATH_NAMED("ilogb2");
int3_border ilogb(double3_border) LANEMATH_NAMED("ilogb3");
lanemath_wide_int4 ilogb(lanemath_wide_double4) LANEMATH_NAMED_WIDE("ilogb4");
lanemath_wide_int8 ilogb(lanemath_wide_double8) LANEMATH_NAMED_WIDE("ilogb8");
lanemath_wide_int16 ilogb(lanemath_wide_double16) LANEMATH_NAMED_WIDE("ilogb16");
std::int32_t ilogb(float) LANEMATH_NAMED("ilogbf1");
lanemath_border_int2 ilogb(lanemath_border_float2) LANEMATH_NAMED("ilogbf2");
int3_border ilogb(float3_border) LANEMATH_NAMED("ilogbf3");
lanemath_border_int4 ilogb(lanemath_border_float4) LANEMATH_NAMED("ilogbf4");
lanemath_wide_int8 ilogb(lanemath_wide_float8) LANEMATH_NAMED_WIDE("ilogbf8");
lanemath_wide_int16 ilogb(lanemath_wide_float16) LANEMATH_NAMED_WIDE("ilogbf16");
double logb(double) LANEMATH_NAMED("logb1");
lanemath_border_double2 logb(lanemath_border_double2) LANEMATH_NAMED("logb2");
double3_border logb(double3_border) LANEMATH_NAMED("logb3");
lanemath_wide_double4 logb(lanemath_wide_double4) LANEMATH_NAMED_WIDE("logb4");
lanemath_wide_double8 logb(lanemath_wide_double8) LANEMATH_NAMED_WIDE("logb8");
lanemath_wide_double16 logb(lanemath_wide_double16) LANEMATH_NAMED_WIDE("logb16");
float logb(float) LANEMATH_NAMED("logbf1");
lanemath_border_float2 logb(lanemath_border_float2) LANEMATH_NAMED("logbf2");
float3_border logb(float3_border) LANEMATH_NAMED("logbf3");
lanemath_border_float4 logb(lanemath_border_float4) LANEMATH_NAMED("logbf4");
lanemath_wide_float8 logb(lanemath_wide_float8) LANEMATH_NAMED_WIDE("logbf8");
lanemath_wide_float16 logb(lanemath_wide_float16) LANEMATH_NAMED_WIDE("logbf16");
double nan(std::uint64_t) LANEMATH_NAMED("nan1");
lanemath_border_double2 nan(lanemath_border_ulong2) LANEMATH_NAMED("nan2");
double3_border nan(ulong3_border) LANEMATH_NAMED("nan3");
lanemath_wide_double4 nan(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("nan4");
lanemath_wide_double8 nan(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("nan8");
lanemath_wide_double16 nan(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("nan16");
float nan(std::uint32_t) LANEMATH_NAMED("nanf1");
lanemath_border_float2 nan(lanemath_border_uint2) LANEMATH_NAMED("nanf2");
float3_border nan(uint3_border) LANEMATH_NAMED("nanf3");
lanemath_border_float4 nan(lanemath_border_uint4) LANEMATH_NAMED("nanf4");
lanemath_wide_float8 nan(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("nanf8");
lanemath_wide_float16 nan(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("nanf16");
double nextafter(double, double) LANEMATH_NAMED("nextafter1");
lanemath_border_double2 nextafter(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("nextafter2");
double3_border nextafter(double3_border, double3_border) LANEMATH_NAMED("nextafter3");
lanemath_wide_double4 nextafter(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("nextafter4");
lanemath_wide_double8 nextafter(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("nextafter8");
lanemath_wide_double16 nextafter(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("nextafter16");
float nextafter(float, float) LANEMATH_NAMED("nextafterf1");
lanemath_border_float2 nextafter(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("nextafterf2");
float3_border nextafter(float3_border, float3_border) LANEMATH_NAMED("nextafterf3");
lanemath_border_float4 nextafter(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("nextafterf4");
lanemath_wide_float8 nextafter(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("nextafterf8");
lanemath_wide_float16 nextafter(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("nextafterf16");
double fmod(double, double) LANEMATH_NAMED("fmod1");
lanemath_border_double2 fmod(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("fmod2");
double3_border fmod(double3_border, double3_border) LANEMATH_NAMED("fmod3");
lanemath_wide_double4 fmod(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("fmod4");
lanemath_wide_double8 fmod(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("fmod8");
lanemath_wide_double16 fmod(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("fmod16");
float fmod(float, float) LANEMATH_NAMED("fmodf1");
lanemath_border_float2 fmod(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("fmodf2");
float3_border fmod(float3_border, float3_border) LANEMATH_NAMED("fmodf3");
lanemath_border_float4 fmod(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("fmodf4");
lanemath_wide_float8 fmod(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("fmodf8");
lanemath_wide_float16 fmod(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("fmodf16");
double remainder(double, double) LANEMATH_NAMED("remainder1");
lanemath_border_double2 remainder(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("remainder2");
double3_border remainder(double3_border, double3_border) LANEMATH_NAMED("remainder3");
lanemath_wide_double4 remainder(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("remainder4");
lanemath_wide_double8 remainder(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("remainder8");
lanemath_wide_double16 remainder(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("remainder16");
float remainder(float, float) LANEMATH_NAMED("remainderf1");
lanemath_border_float2 remainder(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("remainderf2");
float3_border remainder(float3_border, float3_border) LANEMATH_NAMED("remainderf3");
lanemath_border_float4 remainder(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("remainderf4");
lanemath_wide_float8 remainder(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("remainderf8");
lanemath_wide_float16 remainder(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("remainderf16");
double remquo(double, double, void*) LANEMATH_NAMED("remquo1");
lanemath_border_double2 remquo(lanemath_border_double2, lanemath_border_double2, void*) LANEMATH_NAMED("remquo2");
double3_border remquo(double3_border, double3_border, void*) LANEMATH_NAMED("remquo3");
lanemath_wide_double4 remquo(lanemath_wide_double4, lanemath_wide_double4, void*) LANEMATH_NAMED_WIDE("remquo4");
lanemath_wide_double8 remquo(lanemath_wide_double8, lanemath_wide_double8, void*) LANEMATH_NAMED_WIDE("remquo8");
lanemath_wide_double16 remquo(lanemath_wide_double16, lanemath_wide_double16, void*) LANEMATH_NAMED_WIDE("remquo16");
float remquo(float, float, void*) LANEMATH_NAMED("remquof1");
lanemath_border_float2 remquo(lanemath_border_float2, lanemath_border_float2, void*) LANEMATH_NAMED("remquof2");
float3_border remquo(float3_border, float3_border, void*) LANEMATH_NAMED("remquof3");
lanemath_border_float4 remquo(lanemath_border_float4, lanemath_border_float4, void*) LANEMATH_NAMED("remquof4");
lanemath_wide_float8 remquo(lanemath_wide_float8, lanemath_wide_float8, void*) LANEMATH_NAMED_WIDE("remquof8");
lanemath_wide_float16 remquo(lanemath_wide_float16, lanemath_wide_float16, void*) LANEMATH_NAMED_WIDE("remquof16");
double fma(double, double, double) LANEMATH_NAMED("fma1");
lanemath_border_double2 fma(lanemath_border_double2, lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("fma2");
double3_border fma(double3_border, double3_border, double3_border) LANEMATH_NAMED("fma3");
lanemath_wide_double4 fma(lanemath_wide_double4, lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("fma4");
lanemath_wide_double8 fma(lanemath_wide_double8, lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("fma8");
lanemath_wide_double16 fma(lanemath_wide_double16, lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("fma16");
float fma(float, float, float) LANEMATH_NAMED("fmaf1");
lanemath_border_float2 fma(lanemath_border_float2, lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("fmaf2");
float3_border fma(float3_border, float3_border, float3_border) LANEMATH_NAMED("fmaf3");
lanemath_border_float4 fma(lanemath_border_float4, lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("fmaf4");
lanemath_wide_float8 fma(lanemath_wide_float8, lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("fmaf8");
lanemath_wide_float16 fma(lanemath_wide_float16, lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("fmaf16");
std::int32_t idiv(std::int32_t, std::int32_t) LANEMATH_NAMED("idiv1");
lanemath_border_int2 idiv(lanemath_border_int2, lanemath_border_int2) LANEMATH_NAMED("idiv2");
int3_border idiv(int3_border, int3_border) LANEMATH_NAMED("idiv3");
lanemath_border_int4 idiv(lanemath_border_int4, lanemath_border_int4) LANEMATH_NAMED("idiv4");
lanemath_wide_int8 idiv(lanemath_wide_int8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("idiv8");
lanemath_wide_int16 idiv(lanemath_wide_int16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("idiv16");
std::int32_t irem(std::int32_t, std::int32_t) LANEMATH_NAMED("irem1");
lanemath_border_int2 irem(lanemath_border_int2, lanemath_border_int2) LANEMATH_NAMED("irem2");
int3_border irem(int3_border, int3_border) LANEMATH_NAMED("irem3");
lanemath_border_int4 irem(lanemath_border_int4, lanemath_border_int4) LANEMATH_NAMED("irem4");
lanemath_wide_int8 irem(lanemath_wide_int8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("irem8");
lanemath_wide_int16 irem(lanemath_wide_int16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("irem16");
both<std::int32_t> idivrem(std::int32_t, std::int32_t) LANEMATH_NAMED("idivrem1");
both<lanemath_border_int2> idivrem(lanemath_border_int2, lanemath_border_int2) LANEMATH_NAMED("idivrem2");
both<int3_border> idivrem(int3_border, int3_border) LANEMATH_NAMED("idivrem3");
both<lanemath_border_int4> idivrem(lanemath_border_int4, lanemath_border_int4) LANEMATH_NAMED("idivrem4");
both<lanemath_wide_int8> idivrem(lanemath_wide_int8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("idivrem8");
both<lanemath_wide_int16> idivrem(lanemath_wide_int16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("idivrem16");
std::uint32_t udiv(std::uint32_t, std::uint32_t) LANEMATH_NAMED("udiv1");
lanemath_border_uint2 udiv(lanemath_border_uint2, lanemath_border_uint2) LANEMATH_NAMED("udiv2");
uint3_border udiv(uint3_border, uint3_border) LANEMATH_NAMED("udiv3");
lanemath_border_uint4 udiv(lanemath_border_uint4, lanemath_border_uint4) LANEMATH_NAMED("udiv4");
lanemath_wide_uint8 udiv(lanemath_wide_uint8, lanemath_wide_uint8) LANEMATH_NAMED_WIDE("udiv8");
lanemath_wide_uint16 udiv(lanemath_wide_uint16, lanemath_wide_uint16) LANEMATH_NAMED_WIDE("udiv16");
std::uint32_t urem(std::uint32_t, std::uint32_t) LANEMATH_NAMED("urem1");
lanemath_border_uint2 urem(lanemath_border_uint2, lanemath_border_uint2) LANEMATH_NAMED("urem2");
uint3_border urem(uint3_border, uint3_border) LANEMATH_NAMED("urem3");
lanemath_border_uint4 urem(lanemath_border_uint4, lanemath_border_uint4) LANEMATH_NAMED("urem4");
lanemath_wide_uint8 urem(lanemath_wide_uint8, lanemath_wide_uint8) LANEMATH_NAMED_WIDE("urem8");
lanemath_wide_uint16 urem(lanemath_wide_uint16, lanemath_wide_uint16) LANEMATH_NAMED_WIDE("urem16");
both<std::uint32_t> udivrem(std::uint32_t, std::uint32_t) LANEMATH_NAMED("udivrem1");
both<lanemath_border_uint2> udivrem(lanemath_border_uint2, lanemath_border_uint2) LANEMATH_NAMED("udivrem2");
both<uint3_border> udivrem(uint3_border, uint3_border) LANEMATH_NAMED("udivrem3");
both<lanemath_border_uint4> udivrem(lanemath_border_uint4, lanemath_border_uint4) LANEMATH_NAMED("udivrem4");
both<lanemath_wide_uint8> udivrem(lanemath_wide_uint8, lanemath_wide_uint8) LANEMATH_NAMED_WIDE("udivrem8");
both<lanemath_wide_uint16> udivrem(lanemath_wide_uint16, lanemath_wide_uint16) LANEMATH_NAMED_WIDE("udivrem16");
std::int32_t to_int_rte_sat(double) LANEMATH_NAMED("cvtfptoi32rtesat1");
lanemath_border_int2 to_int_rte_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi32rtesat2");
int3_border to_int_rte_sat(double3_border) LANEMATH_NAMED("cvtfptoi32rtesat3");
lanemath_wide_int4 to_int_rte_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtesat4");
lanemath_wide_int8 to_int_rte_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtesat8");
lanemath_wide_int16 to_int_rte_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtesat16");
std::int32_t to_int_rte_sat(float) LANEMATH_NAMED("cvtfptoi32rtesatf1");
lanemath_border_int2 to_int_rte_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi32rtesatf2");
int3_border to_int_rte_sat(float3_border) LANEMATH_NAMED("cvtfptoi32rtesatf3");
lanemath_border_int4 to_int_rte_sat(lanemath_border_float4) LANEMATH_NAMED("cvtfptoi32rtesatf4");
lanemath_wide_int8 to_int_rte_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtesatf8");
lanemath_wide_int16 to_int_rte_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtesatf16");
std::int32_t to_int_rte(double) LANEMATH_NAMED("cvtfptoi32rtenosat1");
lanemath_border_int2 to_int_rte(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi32rtenosat2");
int3_border to_int_rte(double3_border) LANEMATH_NAMED("cvtfptoi32rtenosat3");
lanemath_wide_int4 to_int_rte(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtenosat4");
lanemath_wide_int8 to_int_rte(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtenosat8");
lanemath_wide_int16 to_int_rte(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtenosat16");
std::int32_t to_int_rte(float) LANEMATH_NAMED("cvtfptoi32rtenosatf1");
lanemath_border_int2 to_int_rte(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi32rtenosatf2");
int3_border to_int_rte(float3_border) LANEMATH_NAMED("cvtfptoi32rtenosatf3");
lanemath_border_int4 to_int_rte(lanemath_border_float4) LANEMATH_NAMED("cvtfptoi32rtenosatf4");
lanemath_wide_int8 to_int_rte(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtenosatf8");
lanemath_wide_int16 to_int_rte(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtenosatf16");
std::int32_t to_int_rtn_sat(double) LANEMATH_NAMED("cvtfptoi32rtnsat1");
lanemath_border_int2 to_int_rtn_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi32rtnsat2");
int3_border to_int_rtn_sat(double3_border) LANEMATH_NAMED("cvtfptoi32rtnsat3");
lanemath_wide_int4 to_int_rtn_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtnsat4");
lanemath_wide_int8 to_int_rtn_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtnsat8");
lanemath_wide_int16 to_int_rtn_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtnsat16");
std::int32_t to_int_rtn_sat(float) LANEMATH_NAMED("cvtfptoi32rtnsatf1");
lanemath_border_int2 to_int_rtn_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi32rtnsatf2");
int3_border to_int_rtn_sat(float3_border) LANEMATH_NAMED("cvtfptoi32rtnsatf3");
lanemath_border_int4 to_int_rtn_sat(lanemath_border_float4) LANEMATH_NAMED("cvtfptoi32rtnsatf4");
lanemath_wide_int8 to_int_rtn_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtnsatf8");
lanemath_wide_int16 to_int_rtn_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtnsatf16");
std::int32_t to_int_rtn(double) LANEMATH_NAMED("cvtfptoi32rtnnosat1");
lanemath_border_int2 to_int_rtn(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi32rtnnosat2");
int3_border to_int_rtn(double3_border) LANEMATH_NAMED("cvtfptoi32rtnnosat3");
lanemath_wide_int4 to_int_rtn(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtnnosat4");
lanemath_wide_int8 to_int_rtn(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtnnosat8");
lanemath_wide_int16 to_int_rtn(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtnnosat16");
std::int32_t to_int_rtn(float) LANEMATH_NAMED("cvtfptoi32rtnnosatf1");
lanemath_border_int2 to_int_rtn(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi32rtnnosatf2");
int3_border to_int_rtn(float3_border) LANEMATH_NAMED("cvtfptoi32rtnnosatf3");
lanemath_border_int4 to_int_rtn(lanemath_border_float4) LANEMATH_NAMED("cvtfptoi32rtnnosatf4");
lanemath_wide_int8 to_int_rtn(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtnnosatf8");
lanemath_wide_int16 to_int_rtn(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtnnosatf16");
std::int32_t to_int_rtp_sat(double) LANEMATH_NAMED("cvtfptoi32rtpsat1");
lanemath_border_int2 to_int_rtp_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi32rtpsat2");
int3_border to_int_rtp_sat(double3_border) LANEMATH_NAMED("cvtfptoi32rtpsat3");
lanemath_wide_int4 to_int_rtp_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtpsat4");
lanemath_wide_int8 to_int_rtp_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtpsat8");
lanemath_wide_int16 to_int_rtp_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtpsat16");
std::int32_t to_int_rtp_sat(float) LANEMATH_NAMED("cvtfptoi32rtpsatf1");
lanemath_border_int2 to_int_rtp_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi32rtpsatf2");
int3_border to_int_rtp_sat(float3_border) LANEMATH_NAMED("cvtfptoi32rtpsatf3");
lanemath_border_int4 to_int_rtp_sat(lanemath_border_float4) LANEMATH_NAMED("cvtfptoi32rtpsatf4");
lanemath_wide_int8 to_int_rtp_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtpsatf8");
lanemath_wide_int16 to_int_rtp_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtpsatf16");
std::int32_t to_int_rtp(double) LANEMATH_NAMED("cvtfptoi32rtpnosat1");
lanemath_border_int2 to_int_rtp(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi32rtpnosat2");
int3_border to_int_rtp(double3_border) LANEMATH_NAMED("cvtfptoi32rtpnosat3");
lanemath_wide_int4 to_int_rtp(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtpnosat4");
lanemath_wide_int8 to_int_rtp(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtpnosat8");
lanemath_wide_int16 to_int_rtp(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtpnosat16");
std::int32_t to_int_rtp(float) LANEMATH_NAMED("cvtfptoi32rtpnosatf1");
lanemath_border_int2 to_int_rtp(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi32rtpnosatf2");
int3_border to_int_rtp(float3_border) LANEMATH_NAMED("cvtfptoi32rtpnosatf3");
lanemath_border_int4 to_int_rtp(lanemath_border_float4) LANEMATH_NAMED("cvtfptoi32rtpnosatf4");
lanemath_wide_int8 to_int_rtp(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtpnosatf8");
lanemath_wide_int16 to_int_rtp(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtpnosatf16");
std::int32_t to_int_rtz_sat(double) LANEMATH_NAMED("cvtfptoi32rtzsat1");
lanemath_border_int2 to_int_rtz_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi32rtzsat2");
int3_border to_int_rtz_sat(double3_border) LANEMATH_NAMED("cvtfptoi32rtzsat3");
lanemath_wide_int4 to_int_rtz_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtzsat4");
lanemath_wide_int8 to_int_rtz_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtzsat8");
lanemath_wide_int16 to_int_rtz_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtzsat16");
std::int32_t to_int_rtz_sat(float) LANEMATH_NAMED("cvtfptoi32rtzsatf1");
lanemath_border_int2 to_int_rtz_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi32rtzsatf2");
int3_border to_int_rtz_sat(float3_border) LANEMATH_NAMED("cvtfptoi32rtzsatf3");
lanemath_border_int4 to_int_rtz_sat(lanemath_border_float4) LANEMATH_NAMED("cvtfptoi32rtzsatf4");
lanemath_wide_int8 to_int_rtz_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtzsatf8");
lanemath_wide_int16 to_int_rtz_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtzsatf16");
std::int32_t to_int_rtz(double) LANEMATH_NAMED("cvtfptoi32rtznosat1");
lanemath_border_int2 to_int_rtz(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi32rtznosat2");
int3_border to_int_rtz(double3_border) LANEMATH_NAMED("cvtfptoi32rtznosat3");
lanemath_wide_int4 to_int_rtz(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtznosat4");
lanemath_wide_int8 to_int_rtz(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtznosat8");
lanemath_wide_int16 to_int_rtz(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtznosat16");
std::int32_t to_int_rtz(float) LANEMATH_NAMED("cvtfptoi32rtznosatf1");
lanemath_border_int2 to_int_rtz(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi32rtznosatf2");
int3_border to_int_rtz(float3_border) LANEMATH_NAMED("cvtfptoi32rtznosatf3");
lanemath_border_int4 to_int_rtz(lanemath_border_float4) LANEMATH_NAMED("cvtfptoi32rtznosatf4");
lanemath_wide_int8 to_int_rtz(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtznosatf8");
lanemath_wide_int16 to_int_rtz(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtznosatf16");
std::uint32_t to_uint_rte_sat(double) LANEMATH_NAMED("cvtfptou32rtesat1");
lanemath_border_uint2 to_uint_rte_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptou32rtesat2");
uint3_border to_uint_rte_sat(double3_border) LANEMATH_NAMED("cvtfptou32rtesat3");
lanemath_wide_uint4 to_uint_rte_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtesat4");
lanemath_wide_uint8 to_uint_rte_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtesat8");
lanemath_wide_uint16 to_uint_rte_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtesat16");
std::uint32_t to_uint_rte_sat(float) LANEMATH_NAMED("cvtfptou32rtesatf1");
lanemath_border_uint2 to_uint_rte_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptou32rtesatf2");
uint3_border to_uint_rte_sat(float3_border) LANEMATH_NAMED("cvtfptou32rtesatf3");
lanemath_border_uint4 to_uint_rte_sat(lanemath_border_float4) LANEMATH_NAMED("cvtfptou32rtesatf4");
lanemath_wide_uint8 to_uint_rte_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtesatf8");
lanemath_wide_uint16 to_uint_rte_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtesatf16");
std::uint32_t to_uint_rte(double) LANEMATH_NAMED("cvtfptou32rtenosat1");
lanemath_border_uint2 to_uint_rte(lanemath_border_double2) LANEMATH_NAMED("cvtfptou32rtenosat2");
uint3_border to_uint_rte(double3_border) LANEMATH_NAMED("cvtfptou32rtenosat3");
lanemath_wide_uint4 to_uint_rte(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtenosat4");
lanemath_wide_uint8 to_uint_rte(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtenosat8");
lanemath_wide_uint16 to_uint_rte(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtenosat16");
std::uint32_t to_uint_rte(float) LANEMATH_NAMED("cvtfptou32rtenosatf1");
lanemath_border_uint2 to_uint_rte(lanemath_border_float2) LANEMATH_NAMED("cvtfptou32rtenosatf2");
uint3_border to_uint_rte(float3_border) LANEMATH_NAMED("cvtfptou32rtenosatf3");
lanemath_border_uint4 to_uint_rte(lanemath_border_float4) LANEMATH_NAMED("cvtfptou32rtenosatf4");
lanemath_wide_uint8 to_uint_rte(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtenosatf8");
lanemath_wide_uint16 to_uint_rte(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtenosatf16");
std::uint32_t to_uint_rtn_sat(double) LANEMATH_NAMED("cvtfptou32rtnsat1");
lanemath_border_uint2 to_uint_rtn_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptou32rtnsat2");
uint3_border to_uint_rtn_sat(double3_border) LANEMATH_NAMED("cvtfptou32rtnsat3");
lanemath_wide_uint4 to_uint_rtn_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtnsat4");
lanemath_wide_uint8 to_uint_rtn_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtnsat8");
lanemath_wide_uint16 to_uint_rtn_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtnsat16");
std::uint32_t to_uint_rtn_sat(float) LANEMATH_NAMED("cvtfptou32rtnsatf1");
lanemath_border_uint2 to_uint_rtn_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptou32rtnsatf2");
uint3_border to_uint_rtn_sat(float3_border) LANEMATH_NAMED("cvtfptou32rtnsatf3");
lanemath_border_uint4 to_uint_rtn_sat(lanemath_border_float4) LANEMATH_NAMED("cvtfptou32rtnsatf4");
lanemath_wide_uint8 to_uint_rtn_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtnsatf8");
lanemath_wide_uint16 to_uint_rtn_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtnsatf16");
std::uint32_t to_uint_rtn(double) LANEMATH_NAMED("cvtfptou32rtnnosat1");
lanemath_border_uint2 to_uint_rtn(lanemath_border_double2) LANEMATH_NAMED("cvtfptou32rtnnosat2");
uint3_border to_uint_rtn(double3_border) LANEMATH_NAMED("cvtfptou32rtnnosat3");
lanemath_wide_uint4 to_uint_rtn(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtnnosat4");
lanemath_wide_uint8 to_uint_rtn(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtnnosat8");
lanemath_wide_uint16 to_uint_rtn(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtnnosat16");
std::uint32_t to_uint_rtn(float) LANEMATH_NAMED("cvtfptou32rtnnosatf1");
lanemath_border_uint2 to_uint_rtn(lanemath_border_float2) LANEMATH_NAMED("cvtfptou32rtnnosatf2");
uint3_border to_uint_rtn(float3_border) LANEMATH_NAMED("cvtfptou32rtnnosatf3");
lanemath_border_uint4 to_uint_rtn(lanemath_border_float4) LANEMATH_NAMED("cvtfptou32rtnnosatf4");
lanemath_wide_uint8 to_uint_rtn(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtnnosatf8");
lanemath_wide_uint16 to_uint_rtn(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtnnosatf16");
std::uint32_t to_uint_rtp_sat(double) LANEMATH_NAMED("cvtfptou32rtpsat1");
lanemath_border_uint2 to_uint_rtp_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptou32rtpsat2");
uint3_border to_uint_rtp_sat(double3_border) LANEMATH_NAMED("cvtfptou32rtpsat3");
lanemath_wide_uint4 to_uint_rtp_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtpsat4");
lanemath_wide_uint8 to_uint_rtp_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtpsat8");
lanemath_wide_uint16 to_uint_rtp_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtpsat16");
std::uint32_t to_uint_rtp_sat(float) LANEMATH_NAMED("cvtfptou32rtpsatf1");
lanemath_border_uint2 to_uint_rtp_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptou32rtpsatf2");
uint3_border to_uint_rtp_sat(float3_border) LANEMATH_NAMED("cvtfptou32rtpsatf3");
lanemath_border_uint4 to_uint_rtp_sat(lanemath_border_float4) LANEMATH_NAMED("cvtfptou32rtpsatf4");
lanemath_wide_uint8 to_uint_rtp_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtpsatf8");
lanemath_wide_uint16 to_uint_rtp_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtpsatf16");
std::uint32_t to_uint_rtp(double) LANEMATH_NAMED("cvtfptou32rtpnosat1");
lanemath_border_uint2 to_uint_rtp(lanemath_border_double2) LANEMATH_NAMED("cvtfptou32rtpnosat2");
uint3_border to_uint_rtp(double3_border) LANEMATH_NAMED("cvtfptou32rtpnosat3");
lanemath_wide_uint4 to_uint_rtp(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtpnosat4");
lanemath_wide_uint8 to_uint_rtp(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtpnosat8");
lanemath_wide_uint16 to_uint_rtp(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtpnosat16");
std::uint32_t to_uint_rtp(float) LANEMATH_NAMED("cvtfptou32rtpnosatf1");
lanemath_border_uint2 to_uint_rtp(lanemath_border_float2) LANEMATH_NAMED("cvtfptou32rtpnosatf2");
uint3_border to_uint_rtp(float3_border) LANEMATH_NAMED("cvtfptou32rtpnosatf3");
lanemath_border_uint4 to_uint_rtp(lanemath_border_float4) LANEMATH_NAMED("cvtfptou32rtpnosatf4");
lanemath_wide_uint8 to_uint_rtp(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtpnosatf8");
lanemath_wide_uint16 to_uint_rtp(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtpnosatf16");
std::uint32_t to_uint_rtz_sat(double) LANEMATH_NAMED("cvtfptou32rtzsat1");
lanemath_border_uint2 to_uint_rtz_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptou32rtzsat2");
uint3_border to_uint_rtz_sat(double3_border) LANEMATH_NAMED("cvtfptou32rtzsat3");
lanemath_wide_uint4 to_uint_rtz_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtzsat4");
lanemath_wide_uint8 to_uint_rtz_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtzsat8");
lanemath_wide_uint16 to_uint_rtz_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtzsat16");
std::uint32_t to_uint_rtz_sat(float) LANEMATH_NAMED("cvtfptou32rtzsatf1");
lanemath_border_uint2 to_uint_rtz_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptou32rtzsatf2");
uint3_border to_uint_rtz_sat(float3_border) LANEMATH_NAMED("cvtfptou32rtzsatf3");
lanemath_border_uint4 to_uint_rtz_sat(lanemath_border_float4) LANEMATH_NAMED("cvtfptou32rtzsatf4");
lanemath_wide_uint8 to_uint_rtz_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtzsatf8");
lanemath_wide_uint16 to_uint_rtz_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtzsatf16");
std::uint32_t to_uint_rtz(double) LANEMATH_NAMED("cvtfptou32rtznosat1");
lanemath_border_uint2 to_uint_rtz(lanemath_border_double2) LANEMATH_NAMED("cvtfptou32rtznosat2");
uint3_border to_uint_rtz(double3_border) LANEMATH_NAMED("cvtfptou32rtznosat3");
lanemath_wide_uint4 to_uint_rtz(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtznosat4");
lanemath_wide_uint8 to_uint_rtz(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtznosat8");
lanemath_wide_uint16 to_uint_rtz(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtznosat16");
std::uint32_t to_uint_rtz(float) LANEMATH_NAMED("cvtfptou32rtznosatf1");
lanemath_border_uint2 to_uint_rtz(lanemath_border_float2) LANEMATH_NAMED("cvtfptou32rtznosatf2");
uint3_border to_uint_rtz(float3_border) LANEMATH_NAMED("cvtfptou32rtznosatf3");
lanemath_border_uint4 to_uint_rtz(lanemath_border_float4) LANEMATH_NAMED("cvtfptou32rtznosatf4");
lanemath_wide_uint8 to_uint_rtz(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtznosatf8");
lanemath_wide_uint16 to_uint_rtz(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtznosatf16");
std::int64_t to_long_rte_sat(double) LANEMATH_NAMED("cvtfptoi64rtesat1");
lanemath_border_long2 to_long_rte_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi64rtesat2");
long3_border to_long_rte_sat(double3_border) LANEMATH_NAMED("cvtfptoi64rtesat3");
lanemath_wide_long4 to_long_rte_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtesat4");
lanemath_wide_long8 to_long_rte_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtesat8");
lanemath_wide_long16 to_long_rte_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtesat16");
std::int64_t to_long_rte_sat(float) LANEMATH_NAMED("cvtfptoi64rtesatf1");
lanemath_border_long2 to_long_rte_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi64rtesatf2");
long3_border to_long_rte_sat(float3_border) LANEMATH_NAMED("cvtfptoi64rtesatf3");
lanemath_wide_long4 to_long_rte_sat(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtesatf4");
lanemath_wide_long8 to_long_rte_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtesatf8");
lanemath_wide_long16 to_long_rte_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtesatf16");
std::int64_t to_long_rte(double) LANEMATH_NAMED("cvtfptoi64rtenosat1");
lanemath_border_long2 to_long_rte(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi64rtenosat2");
long3_border to_long_rte(double3_border) LANEMATH_NAMED("cvtfptoi64rtenosat3");
lanemath_wide_long4 to_long_rte(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtenosat4");
lanemath_wide_long8 to_long_rte(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtenosat8");
lanemath_wide_long16 to_long_rte(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtenosat16");
std::int64_t to_long_rte(float) LANEMATH_NAMED("cvtfptoi64rtenosatf1");
lanemath_border_long2 to_long_rte(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi64rtenosatf2");
long3_border to_long_rte(float3_border) LANEMATH_NAMED("cvtfptoi64rtenosatf3");
lanemath_wide_long4 to_long_rte(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtenosatf4");
lanemath_wide_long8 to_long_rte(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtenosatf8");
lanemath_wide_long16 to_long_rte(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtenosatf16");
std::int64_t to_long_rtn_sat(double) LANEMATH_NAMED("cvtfptoi64rtnsat1");
lanemath_border_long2 to_long_rtn_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi64rtnsat2");
long3_border to_long_rtn_sat(double3_border) LANEMATH_NAMED("cvtfptoi64rtnsat3");
lanemath_wide_long4 to_long_rtn_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtnsat4");
lanemath_wide_long8 to_long_rtn_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtnsat8");
lanemath_wide_long16 to_long_rtn_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtnsat16");
std::int64_t to_long_rtn_sat(float) LANEMATH_NAMED("cvtfptoi64rtnsatf1");
lanemath_border_long2 to_long_rtn_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi64rtnsatf2");
long3_border to_long_rtn_sat(float3_border) LANEMATH_NAMED("cvtfptoi64rtnsatf3");
lanemath_wide_long4 to_long_rtn_sat(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtnsatf4");
lanemath_wide_long8 to_long_rtn_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtnsatf8");
lanemath_wide_long16 to_long_rtn_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtnsatf16");
std::int64_t to_long_rtn(double) LANEMATH_NAMED("cvtfptoi64rtnnosat1");
lanemath_border_long2 to_long_rtn(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi64rtnnosat2");
long3_border to_long_rtn(double3_border) LANEMATH_NAMED("cvtfptoi64rtnnosat3");
lanemath_wide_long4 to_long_rtn(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtnnosat4");
lanemath_wide_long8 to_long_rtn(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtnnosat8");
lanemath_wide_long16 to_long_rtn(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtnnosat16");
std::int64_t to_long_rtn(float) LANEMATH_NAMED("cvtfptoi64rtnnosatf1");
lanemath_border_long2 to_long_rtn(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi64rtnnosatf2");
long3_border to_long_rtn(float3_border) LANEMATH_NAMED("cvtfptoi64rtnnosatf3");
lanemath_wide_long4 to_long_rtn(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtnnosatf4");
lanemath_wide_long8 to_long_rtn(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtnnosatf8");
lanemath_wide_long16 to_long_rtn(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtnnosatf16");
std::int64_t to_long_rtp_sat(double) LANEMATH_NAMED("cvtfptoi64rtpsat1");
lanemath_border_long2 to_long_rtp_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi64rtpsat2");
long3_border to_long_rtp_sat(double3_border) LANEMATH_NAMED("cvtfptoi64rtpsat3");
lanemath_wide_long4 to_long_rtp_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtpsat4");
lanemath_wide_long8 to_long_rtp_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtpsat8");
lanemath_wide_long16 to_long_rtp_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtpsat16");
std::int64_t to_long_rtp_sat(float) LANEMATH_NAMED("cvtfptoi64rtpsatf1");
lanemath_border_long2 to_long_rtp_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi64rtpsatf2");
long3_border to_long_rtp_sat(float3_border) LANEMATH_NAMED("cvtfptoi64rtpsatf3");
lanemath_wide_long4 to_long_rtp_sat(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtpsatf4");
lanemath_wide_long8 to_long_rtp_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtpsatf8");
lanemath_wide_long16 to_long_rtp_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtpsatf16");
std::int64_t to_long_rtp(double) LANEMATH_NAMED("cvtfptoi64rtpnosat1");
lanemath_border_long2 to_long_rtp(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi64rtpnosat2");
long3_border to_long_rtp(double3_border) LANEMATH_NAMED("cvtfptoi64rtpnosat3");
lanemath_wide_long4 to_long_rtp(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtpnosat4");
lanemath_wide_long8 to_long_rtp(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtpnosat8");
lanemath_wide_long16 to_long_rtp(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtpnosat16");
std::int64_t to_long_rtp(float) LANEMATH_NAMED("cvtfptoi64rtpnosatf1");
lanemath_border_long2 to_long_rtp(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi64rtpnosatf2");
long3_border to_long_rtp(float3_border) LANEMATH_NAMED("cvtfptoi64rtpnosatf3");
lanemath_wide_long4 to_long_rtp(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtpnosatf4");
lanemath_wide_long8 to_long_rtp(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtpnosatf8");
lanemath_wide_long16 to_long_rtp(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtpnosatf16");
std::int64_t to_long_rtz_sat(double) LANEMATH_NAMED("cvtfptoi64rtzsat1");
lanemath_border_long2 to_long_rtz_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi64rtzsat2");
long3_border to_long_rtz_sat(double3_border) LANEMATH_NAMED("cvtfptoi64rtzsat3");
lanemath_wide_long4 to_long_rtz_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtzsat4");
lanemath_wide_long8 to_long_rtz_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtzsat8");
lanemath_wide_long16 to_long_rtz_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtzsat16");
std::int64_t to_long_rtz_sat(float) LANEMATH_NAMED("cvtfptoi64rtzsatf1");
lanemath_border_long2 to_long_rtz_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi64rtzsatf2");
long3_border to_long_rtz_sat(float3_border) LANEMATH_NAMED("cvtfptoi64rtzsatf3");
lanemath_wide_long4 to_long_rtz_sat(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtzsatf4");
lanemath_wide_long8 to_long_rtz_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtzsatf8");
lanemath_wide_long16 to_long_rtz_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtzsatf16");
std::int64_t to_long_rtz(double) LANEMATH_NAMED("cvtfptoi64rtznosat1");
lanemath_border_long2 to_long_rtz(lanemath_border_double2) LANEMATH_NAMED("cvtfptoi64rtznosat2");
long3_border to_long_rtz(double3_border) LANEMATH_NAMED("cvtfptoi64rtznosat3");
lanemath_wide_long4 to_long_rtz(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtznosat4");
lanemath_wide_long8 to_long_rtz(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtznosat8");
lanemath_wide_long16 to_long_rtz(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtznosat16");
std::int64_t to_long_rtz(float) LANEMATH_NAMED("cvtfptoi64rtznosatf1");
lanemath_border_long2 to_long_rtz(lanemath_border_float2) LANEMATH_NAMED("cvtfptoi64rtznosatf2");
long3_border to_long_rtz(float3_border) LANEMATH_NAMED("cvtfptoi64rtznosatf3");
lanemath_wide_long4 to_long_rtz(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtznosatf4");
lanemath_wide_long8 to_long_rtz(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtznosatf8");
lanemath_wide_long16 to_long_rtz(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtznosatf16");
std::uint64_t to_ulong_rte_sat(double) LANEMATH_NAMED("cvtfptou64rtesat1");
lanemath_border_ulong2 to_ulong_rte_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptou64rtesat2");
ulong3_border to_ulong_rte_sat(double3_border) LANEMATH_NAMED("cvtfptou64rtesat3");
lanemath_wide_ulong4 to_ulong_rte_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtesat4");
lanemath_wide_ulong8 to_ulong_rte_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtesat8");
lanemath_wide_ulong16 to_ulong_rte_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtesat16");
std::uint64_t to_ulong_rte_sat(float) LANEMATH_NAMED("cvtfptou64rtesatf1");
lanemath_border_ulong2 to_ulong_rte_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptou64rtesatf2");
ulong3_border to_ulong_rte_sat(float3_border) LANEMATH_NAMED("cvtfptou64rtesatf3");
lanemath_wide_ulong4 to_ulong_rte_sat(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtesatf4");
lanemath_wide_ulong8 to_ulong_rte_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtesatf8");
lanemath_wide_ulong16 to_ulong_rte_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtesatf16");
std::uint64_t to_ulong_rte(double) LANEMATH_NAMED("cvtfptou64rtenosat1");
lanemath_border_ulong2 to_ulong_rte(lanemath_border_double2) LANEMATH_NAMED("cvtfptou64rtenosat2");
ulong3_border to_ulong_rte(double3_border) LANEMATH_NAMED("cvtfptou64rtenosat3");
lanemath_wide_ulong4 to_ulong_rte(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtenosat4");
lanemath_wide_ulong8 to_ulong_rte(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtenosat8");
lanemath_wide_ulong16 to_ulong_rte(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtenosat16");
std::uint64_t to_ulong_rte(float) LANEMATH_NAMED("cvtfptou64rtenosatf1");
lanemath_border_ulong2 to_ulong_rte(lanemath_border_float2) LANEMATH_NAMED("cvtfptou64rtenosatf2");
ulong3_border to_ulong_rte(float3_border) LANEMATH_NAMED("cvtfptou64rtenosatf3");
lanemath_wide_ulong4 to_ulong_rte(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtenosatf4");
lanemath_wide_ulong8 to_ulong_rte(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtenosatf8");
lanemath_wide_ulong16 to_ulong_rte(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtenosatf16");
std::uint64_t to_ulong_rtn_sat(double) LANEMATH_NAMED("cvtfptou64rtnsat1");
lanemath_border_ulong2 to_ulong_rtn_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptou64rtnsat2");
ulong3_border to_ulong_rtn_sat(double3_border) LANEMATH_NAMED("cvtfptou64rtnsat3");
lanemath_wide_ulong4 to_ulong_rtn_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtnsat4");
lanemath_wide_ulong8 to_ulong_rtn_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtnsat8");
lanemath_wide_ulong16 to_ulong_rtn_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtnsat16");
std::uint64_t to_ulong_rtn_sat(float) LANEMATH_NAMED("cvtfptou64rtnsatf1");
lanemath_border_ulong2 to_ulong_rtn_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptou64rtnsatf2");
ulong3_border to_ulong_rtn_sat(float3_border) LANEMATH_NAMED("cvtfptou64rtnsatf3");
lanemath_wide_ulong4 to_ulong_rtn_sat(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtnsatf4");
lanemath_wide_ulong8 to_ulong_rtn_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtnsatf8");
lanemath_wide_ulong16 to_ulong_rtn_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtnsatf16");
std::uint64_t to_ulong_rtn(double) LANEMATH_NAMED("cvtfptou64rtnnosat1");
lanemath_border_ulong2 to_ulong_rtn(lanemath_border_double2) LANEMATH_NAMED("cvtfptou64rtnnosat2");
ulong3_border to_ulong_rtn(double3_border) LANEMATH_NAMED("cvtfptou64rtnnosat3");
lanemath_wide_ulong4 to_ulong_rtn(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtnnosat4");
lanemath_wide_ulong8 to_ulong_rtn(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtnnosat8");
lanemath_wide_ulong16 to_ulong_rtn(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtnnosat16");
std::uint64_t to_ulong_rtn(float) LANEMATH_NAMED("cvtfptou64rtnnosatf1");
lanemath_border_ulong2 to_ulong_rtn(lanemath_border_float2) LANEMATH_NAMED("cvtfptou64rtnnosatf2");
ulong3_border to_ulong_rtn(float3_border) LANEMATH_NAMED("cvtfptou64rtnnosatf3");
lanemath_wide_ulong4 to_ulong_rtn(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtnnosatf4");
lanemath_wide_ulong8 to_ulong_rtn(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtnnosatf8");
lanemath_wide_ulong16 to_ulong_rtn(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtnnosatf16");
std::uint64_t to_ulong_rtp_sat(double) LANEMATH_NAMED("cvtfptou64rtpsat1");
lanemath_border_ulong2 to_ulong_rtp_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptou64rtpsat2");
ulong3_border to_ulong_rtp_sat(double3_border) LANEMATH_NAMED("cvtfptou64rtpsat3");
lanemath_wide_ulong4 to_ulong_rtp_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtpsat4");
lanemath_wide_ulong8 to_ulong_rtp_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtpsat8");
lanemath_wide_ulong16 to_ulong_rtp_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtpsat16");
std::uint64_t to_ulong_rtp_sat(float) LANEMATH_NAMED("cvtfptou64rtpsatf1");
lanemath_border_ulong2 to_ulong_rtp_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptou64rtpsatf2");
ulong3_border to_ulong_rtp_sat(float3_border) LANEMATH_NAMED("cvtfptou64rtpsatf3");
lanemath_wide_ulong4 to_ulong_rtp_sat(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtpsatf4");
lanemath_wide_ulong8 to_ulong_rtp_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtpsatf8");
lanemath_wide_ulong16 to_ulong_rtp_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtpsatf16");
std::uint64_t to_ulong_rtp(double) LANEMATH_NAMED("cvtfptou64rtpnosat1");
lanemath_border_ulong2 to_ulong_rtp(lanemath_border_double2) LANEMATH_NAMED("cvtfptou64rtpnosat2");
ulong3_border to_ulong_rtp(double3_border) LANEMATH_NAMED("cvtfptou64rtpnosat3");
lanemath_wide_ulong4 to_ulong_rtp(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtpnosat4");
lanemath_wide_ulong8 to_ulong_rtp(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtpnosat8");
lanemath_wide_ulong16 to_ulong_rtp(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtpnosat16");
std::uint64_t to_ulong_rtp(float) LANEMATH_NAMED("cvtfptou64rtpnosatf1");
lanemath_border_ulong2 to_ulong_rtp(lanemath_border_float2) LANEMATH_NAMED("cvtfptou64rtpnosatf2");
ulong3_border to_ulong_rtp(float3_border) LANEMATH_NAMED("cvtfptou64rtpnosatf3");
lanemath_wide_ulong4 to_ulong_rtp(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtpnosatf4");
lanemath_wide_ulong8 to_ulong_rtp(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtpnosatf8");
lanemath_wide_ulong16 to_ulong_rtp(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtpnosatf16");
std::uint64_t to_ulong_rtz_sat(double) LANEMATH_NAMED("cvtfptou64rtzsat1");
lanemath_border_ulong2 to_ulong_rtz_sat(lanemath_border_double2) LANEMATH_NAMED("cvtfptou64rtzsat2");
ulong3_border to_ulong_rtz_sat(double3_border) LANEMATH_NAMED("cvtfptou64rtzsat3");
lanemath_wide_ulong4 to_ulong_rtz_sat(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtzsat4");
lanemath_wide_ulong8 to_ulong_rtz_sat(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtzsat8");
lanemath_wide_ulong16 to_ulong_rtz_sat(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtzsat16");
std::uint64_t to_ulong_rtz_sat(float) LANEMATH_NAMED("cvtfptou64rtzsatf1");
lanemath_border_ulong2 to_ulong_rtz_sat(lanemath_border_float2) LANEMATH_NAMED("cvtfptou64rtzsatf2");
ulong3_border to_ulong_rtz_sat(float3_border) LANEMATH_NAMED("cvtfptou64rtzsatf3");
lanemath_wide_ulong4 to_ulong_rtz_sat(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtzsatf4");
lanemath_wide_ulong8 to_ulong_rtz_sat(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtzsatf8");
lanemath_wide_ulong16 to_ulong_rtz_sat(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtzsatf16");
std::uint64_t to_ulong_rtz(double) LANEMATH_NAMED("cvtfptou64rtznosat1");
lanemath_border_ulong2 to_ulong_rtz(lanemath_border_double2) LANEMATH_NAMED("cvtfptou64rtznosat2");
ulong3_border to_ulong_rtz(double3_border) LANEMATH_NAMED("cvtfptou64rtznosat3");
lanemath_wide_ulong4 to_ulong_rtz(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtznosat4");
lanemath_wide_ulong8 to_ulong_rtz(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtznosat8");
lanemath_wide_ulong16 to_ulong_rtz(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtznosat16");
std::uint64_t to_ulong_rtz(float) LANEMATH_NAMED("cvtfptou64rtznosatf1");
lanemath_border_ulong2 to_ulong_rtz(lanemath_border_float2) LANEMATH_NAMED("cvtfptou64rtznosatf2");
ulong3_border to_ulong_rtz(float3_border) LANEMATH_NAMED("cvtfptou64rtznosatf3");
lanemath_wide_ulong4 to_ulong_rtz(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtznosatf4");
lanemath_wide_ulong8 to_ulong_rtz(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtznosatf8");
lanemath_wide_ulong16 to_ulong_rtz(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtznosatf16");
double to_double_rte(std::int32_t) LANEMATH_NAMED("cvti32tofprte1");
lanemath_border_double2 to_double_rte(lanemath_border_int2) LANEMATH_NAMED("cvti32tofprte2");
double3_border to_double_rte(int3_border) LANEMATH_NAMED("cvti32tofprte3");
lanemath_wide_double4 to_double_rte(lanemath_wide_int4) LANEMATH_NAMED_WIDE("cvti32tofprte4");
lanemath_wide_double8 to_double_rte(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprte8");
lanemath_wide_double16 to_double_rte(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprte16");
float to_float_rte(std::int32_t) LANEMATH_NAMED("cvti32tofprtef1");
lanemath_border_float2 to_float_rte(lanemath_border_int2) LANEMATH_NAMED("cvti32tofprtef2");
float3_border to_float_rte(int3_border) LANEMATH_NAMED("cvti32tofprtef3");
lanemath_border_float4 to_float_rte(lanemath_border_int4) LANEMATH_NAMED("cvti32tofprtef4");
lanemath_wide_float8 to_float_rte(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtef8");
lanemath_wide_float16 to_float_rte(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtef16");
double to_double_rtn(std::int32_t) LANEMATH_NAMED("cvti32tofprtn1");
lanemath_border_double2 to_double_rtn(lanemath_border_int2) LANEMATH_NAMED("cvti32tofprtn2");
double3_border to_double_rtn(int3_border) LANEMATH_NAMED("cvti32tofprtn3");
lanemath_wide_double4 to_double_rtn(lanemath_wide_int4) LANEMATH_NAMED_WIDE("cvti32tofprtn4");
lanemath_wide_double8 to_double_rtn(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtn8");
lanemath_wide_double16 to_double_rtn(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtn16");
float to_float_rtn(std::int32_t) LANEMATH_NAMED("cvti32tofprtnf1");
lanemath_border_float2 to_float_rtn(lanemath_border_int2) LANEMATH_NAMED("cvti32tofprtnf2");
float3_border to_float_rtn(int3_border) LANEMATH_NAMED("cvti32tofprtnf3");
lanemath_border_float4 to_float_rtn(lanemath_border_int4) LANEMATH_NAMED("cvti32tofprtnf4");
lanemath_wide_float8 to_float_rtn(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtnf8");
lanemath_wide_float16 to_float_rtn(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtnf16");
double to_double_rtp(std::int32_t) LANEMATH_NAMED("cvti32tofprtp1");
lanemath_border_double2 to_double_rtp(lanemath_border_int2) LANEMATH_NAMED("cvti32tofprtp2");
double3_border to_double_rtp(int3_border) LANEMATH_NAMED("cvti32tofprtp3");
lanemath_wide_double4 to_double_rtp(lanemath_wide_int4) LANEMATH_NAMED_WIDE("cvti32tofprtp4");
lanemath_wide_double8 to_double_rtp(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtp8");
lanemath_wide_double16 to_double_rtp(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtp16");
float to_float_rtp(std::int32_t) LANEMATH_NAMED("cvti32tofprtpf1");
lanemath_border_float2 to_float_rtp(lanemath_border_int2) LANEMATH_NAMED("cvti32tofprtpf2");
float3_border to_float_rtp(int3_border) LANEMATH_NAMED("cvti32tofprtpf3");
lanemath_border_float4 to_float_rtp(lanemath_border_int4) LANEMATH_NAMED("cvti32tofprtpf4");
lanemath_wide_float8 to_float_rtp(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtpf8");
lanemath_wide_float16 to_float_rtp(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtpf16");
double to_double_rtz(std::int32_t) LANEMATH_NAMED("cvti32tofprtz1");
lanemath_border_double2 to_double_rtz(lanemath_border_int2) LANEMATH_NAMED("cvti32tofprtz2");
double3_border to_double_rtz(int3_border) LANEMATH_NAMED("cvti32tofprtz3");
lanemath_wide_double4 to_double_rtz(lanemath_wide_int4) LANEMATH_NAMED_WIDE("cvti32tofprtz4");
lanemath_wide_double8 to_double_rtz(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtz8");
lanemath_wide_double16 to_double_rtz(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtz16");
float to_float_rtz(std::int32_t) LANEMATH_NAMED("cvti32tofprtzf1");
lanemath_border_float2 to_float_rtz(lanemath_border_int2) LANEMATH_NAMED("cvti32tofprtzf2");
float3_border to_float_rtz(int3_border) LANEMATH_NAMED("cvti32tofprtzf3");
lanemath_border_float4 to_float_rtz(lanemath_border_int4) LANEMATH_NAMED("cvti32tofprtzf4");
lanemath_wide_float8 to_float_rtz(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtzf8");
lanemath_wide_float16 to_float_rtz(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtzf16");
double to_double_rte(std::uint32_t) LANEMATH_NAMED("cvtu32tofprte1");
lanemath_border_double2 to_double_rte(lanemath_border_uint2) LANEMATH_NAMED("cvtu32tofprte2");
double3_border to_double_rte(uint3_border) LANEMATH_NAMED("cvtu32tofprte3");
lanemath_wide_double4 to_double_rte(lanemath_wide_uint4) LANEMATH_NAMED_WIDE("cvtu32tofprte4");
lanemath_wide_double8 to_double_rte(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprte8");
lanemath_wide_double16 to_double_rte(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprte16");
float to_float_rte(std::uint32_t) LANEMATH_NAMED("cvtu32tofprtef1");
lanemath_border_float2 to_float_rte(lanemath_border_uint2) LANEMATH_NAMED("cvtu32tofprtef2");
float3_border to_float_rte(uint3_border) LANEMATH_NAMED("cvtu32tofprtef3");
lanemath_border_float4 to_float_rte(lanemath_border_uint4) LANEMATH_NAMED("cvtu32tofprtef4");
lanemath_wide_float8 to_float_rte(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtef8");
lanemath_wide_float16 to_float_rte(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtef16");
double to_double_rtn(std::uint32_t) LANEMATH_NAMED("cvtu32tofprtn1");
lanemath_border_double2 to_double_rtn(lanemath_border_uint2) LANEMATH_NAMED("cvtu32tofprtn2");
double3_border to_double_rtn(uint3_border) LANEMATH_NAMED("cvtu32tofprtn3");
lanemath_wide_double4 to_double_rtn(lanemath_wide_uint4) LANEMATH_NAMED_WIDE("cvtu32tofprtn4");
lanemath_wide_double8 to_double_rtn(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtn8");
lanemath_wide_double16 to_double_rtn(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtn16");
float to_float_rtn(std::uint32_t) LANEMATH_NAMED("cvtu32tofprtnf1");
lanemath_border_float2 to_float_rtn(lanemath_border_uint2) LANEMATH_NAMED("cvtu32tofprtnf2");
float3_border to_float_rtn(uint3_border) LANEMATH_NAMED("cvtu32tofprtnf3");
lanemath_border_float4 to_float_rtn(lanemath_border_uint4) LANEMATH_NAMED("cvtu32tofprtnf4");
lanemath_wide_float8 to_float_rtn(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtnf8");
lanemath_wide_float16 to_float_rtn(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtnf16");
double to_double_rtp(std::uint32_t) LANEMATH_NAMED("cvtu32tofprtp1");
lanemath_border_double2 to_double_rtp(lanemath_border_uint2) LANEMATH_NAMED("cvtu32tofprtp2");
double3_border to_double_rtp(uint3_border) LANEMATH_NAMED("cvtu32tofprtp3");
lanemath_wide_double4 to_double_rtp(lanemath_wide_uint4) LANEMATH_NAMED_WIDE("cvtu32tofprtp4");
lanemath_wide_double8 to_double_rtp(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtp8");
lanemath_wide_double16 to_double_rtp(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtp16");
float to_float_rtp(std::uint32_t) LANEMATH_NAMED("cvtu32tofprtpf1");
lanemath_border_float2 to_float_rtp(lanemath_border_uint2) LANEMATH_NAMED("cvtu32tofprtpf2");
float3_border to_float_rtp(uint3_border) LANEMATH_NAMED("cvtu32tofprtpf3");
lanemath_border_float4 to_float_rtp(lanemath_border_uint4) LANEMATH_NAMED("cvtu32tofprtpf4");
lanemath_wide_float8 to_float_rtp(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtpf8");
lanemath_wide_float16 to_float_rtp(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtpf16");
double to_double_rtz(std::uint32_t) LANEMATH_NAMED("cvtu32tofprtz1");
lanemath_border_double2 to_double_rtz(lanemath_border_uint2) LANEMATH_NAMED("cvtu32tofprtz2");
double3_border to_double_rtz(uint3_border) LANEMATH_NAMED("cvtu32tofprtz3");
lanemath_wide_double4 to_double_rtz(lanemath_wide_uint4) LANEMATH_NAMED_WIDE("cvtu32tofprtz4");
lanemath_wide_double8 to_double_rtz(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtz8");
lanemath_wide_double16 to_double_rtz(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtz16");
float to_float_rtz(std::uint32_t) LANEMATH_NAMED("cvtu32tofprtzf1");
lanemath_border_float2 to_float_rtz(lanemath_border_uint2) LANEMATH_NAMED("cvtu32tofprtzf2");
float3_border to_float_rtz(uint3_border) LANEMATH_NAMED("cvtu32tofprtzf3");
lanemath_border_float4 to_float_rtz(lanemath_border_uint4) LANEMATH_NAMED("cvtu32tofprtzf4");
lanemath_wide_float8 to_float_rtz(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtzf8");
lanemath_wide_float16 to_float_rtz(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtzf16");
double to_double_rte(std::int64_t) LANEMATH_NAMED("cvti64tofprte1");
lanemath_border_double2 to_double_rte(lanemath_border_long2) LANEMATH_NAMED("cvti64tofprte2");
double3_border to_double_rte(long3_border) LANEMATH_NAMED("cvti64tofprte3");
lanemath_wide_double4 to_double_rte(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprte4");
lanemath_wide_double8 to_double_rte(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprte8");
lanemath_wide_double16 to_double_rte(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprte16");
float to_float_rte(std::int64_t) LANEMATH_NAMED("cvti64tofprtef1");
lanemath_border_float2 to_float_rte(lanemath_border_long2) LANEMATH_NAMED("cvti64tofprtef2");
float3_border to_float_rte(long3_border) LANEMATH_NAMED("cvti64tofprtef3");
lanemath_wide_float4 to_float_rte(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtef4");
lanemath_wide_float8 to_float_rte(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtef8");
lanemath_wide_float16 to_float_rte(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtef16");
double to_double_rtn(std::int64_t) LANEMATH_NAMED("cvti64tofprtn1");
lanemath_border_double2 to_double_rtn(lanemath_border_long2) LANEMATH_NAMED("cvti64tofprtn2");
double3_border to_double_rtn(long3_border) LANEMATH_NAMED("cvti64tofprtn3");
lanemath_wide_double4 to_double_rtn(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtn4");
lanemath_wide_double8 to_double_rtn(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtn8");
lanemath_wide_double16 to_double_rtn(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtn16");
float to_float_rtn(std::int64_t) LANEMATH_NAMED("cvti64tofprtnf1");
lanemath_border_float2 to_float_rtn(lanemath_border_long2) LANEMATH_NAMED("cvti64tofprtnf2");
float3_border to_float_rtn(long3_border) LANEMATH_NAMED("cvti64tofprtnf3");
lanemath_wide_float4 to_float_rtn(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtnf4");
lanemath_wide_float8 to_float_rtn(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtnf8");
lanemath_wide_float16 to_float_rtn(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtnf16");
double to_double_rtp(std::int64_t) LANEMATH_NAMED("cvti64tofprtp1");
lanemath_border_double2 to_double_rtp(lanemath_border_long2) LANEMATH_NAMED("cvti64tofprtp2");
double3_border to_double_rtp(long3_border) LANEMATH_NAMED("cvti64tofprtp3");
lanemath_wide_double4 to_double_rtp(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtp4");
lanemath_wide_double8 to_double_rtp(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtp8");
lanemath_wide_double16 to_double_rtp(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtp16");
float to_float_rtp(std::int64_t) LANEMATH_NAMED("cvti64tofprtpf1");
lanemath_border_float2 to_float_rtp(lanemath_border_long2) LANEMATH_NAMED("cvti64tofprtpf2");
float3_border to_float_rtp(long3_border) LANEMATH_NAMED("cvti64tofprtpf3");
lanemath_wide_float4 to_float_rtp(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtpf4");
lanemath_wide_float8 to_float_rtp(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtpf8");
lanemath_wide_float16 to_float_rtp(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtpf16");
double to_double_rtz(std::int64_t) LANEMATH_NAMED("cvti64tofprtz1");
lanemath_border_double2 to_double_rtz(lanemath_border_long2) LANEMATH_NAMED("cvti64tofprtz2");
double3_border to_double_rtz(long3_border) LANEMATH_NAMED("cvti64tofprtz3");
lanemath_wide_double4 to_double_rtz(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtz4");
lanemath_wide_double8 to_double_rtz(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtz8");
lanemath_wide_double16 to_double_rtz(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtz16");
float to_float_rtz(std::int64_t) LANEMATH_NAMED("cvti64tofprtzf1");
lanemath_border_float2 to_float_rtz(lanemath_border_long2) LANEMATH_NAMED("cvti64tofprtzf2");
float3_border to_float_rtz(long3_border) LANEMATH_NAMED("cvti64tofprtzf3");
lanemath_wide_float4 to_float_rtz(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtzf4");
lanemath_wide_float8 to_float_rtz(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtzf8");
lanemath_wide_float16 to_float_rtz(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtzf16");
double to_double_rte(std::uint64_t) LANEMATH_NAMED("cvtu64tofprte1");
lanemath_border_double2 to_double_rte(lanemath_border_ulong2) LANEMATH_NAMED("cvtu64tofprte2");
double3_border to_double_rte(ulong3_border) LANEMATH_NAMED("cvtu64tofprte3");
lanemath_wide_double4 to_double_rte(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprte4");
lanemath_wide_double8 to_double_rte(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprte8");
lanemath_wide_double16 to_double_rte(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprte16");
float to_float_rte(std::uint64_t) LANEMATH_NAMED("cvtu64tofprtef1");
lanemath_border_float2 to_float_rte(lanemath_border_ulong2) LANEMATH_NAMED("cvtu64tofprtef2");
float3_border to_float_rte(ulong3_border) LANEMATH_NAMED("cvtu64tofprtef3");
lanemath_wide_float4 to_float_rte(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtef4");
lanemath_wide_float8 to_float_rte(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtef8");
lanemath_wide_float16 to_float_rte(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtef16");
double to_double_rtn(std::uint64_t) LANEMATH_NAMED("cvtu64tofprtn1");
lanemath_border_double2 to_double_rtn(lanemath_border_ulong2) LANEMATH_NAMED("cvtu64tofprtn2");
double3_border to_double_rtn(ulong3_border) LANEMATH_NAMED("cvtu64tofprtn3");
lanemath_wide_double4 to_double_rtn(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtn4");
lanemath_wide_double8 to_double_rtn(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtn8");
lanemath_wide_double16 to_double_rtn(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtn16");
float to_float_rtn(std::uint64_t) LANEMATH_NAMED("cvtu64tofprtnf1");
lanemath_border_float2 to_float_rtn(lanemath_border_ulong2) LANEMATH_NAMED("cvtu64tofprtnf2");
float3_border to_float_rtn(ulong3_border) LANEMATH_NAMED("cvtu64tofprtnf3");
lanemath_wide_float4 to_float_rtn(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtnf4");
lanemath_wide_float8 to_float_rtn(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtnf8");
lanemath_wide_float16 to_float_rtn(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtnf16");
double to_double_rtp(std::uint64_t) LANEMATH_NAMED("cvtu64tofprtp1");
lanemath_border_double2 to_double_rtp(lanemath_border_ulong2) LANEMATH_NAMED("cvtu64tofprtp2");
double3_border to_double_rtp(ulong3_border) LANEMATH_NAMED("cvtu64tofprtp3");
lanemath_wide_double4 to_double_rtp(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtp4");
lanemath_wide_double8 to_double_rtp(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtp8");
lanemath_wide_double16 to_double_rtp(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtp16");
float to_float_rtp(std::uint64_t) LANEMATH_NAMED("cvtu64tofprtpf1");
lanemath_border_float2 to_float_rtp(lanemath_border_ulong2) LANEMATH_NAMED("cvtu64tofprtpf2");
float3_border to_float_rtp(ulong3_border) LANEMATH_NAMED("cvtu64tofprtpf3");
lanemath_wide_float4 to_float_rtp(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtpf4");
lanemath_wide_float8 to_float_rtp(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtpf8");
lanemath_wide_float16 to_float_rtp(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtpf16");
double to_double_rtz(std::uint64_t) LANEMATH_NAMED("cvtu64tofprtz1");
lanemath_border_double2 to_double_rtz(lanemath_border_ulong2) LANEMATH_NAMED("cvtu64tofprtz2");
double3_border to_double_rtz(ulong3_border) LANEMATH_NAMED("cvtu64tofprtz3");
lanemath_wide_double4 to_double_rtz(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtz4");
lanemath_wide_double8 to_double_rtz(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtz8");
lanemath_wide_double16 to_double_rtz(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtz16");
float to_float_rtz(std::uint64_t) LANEMATH_NAMED("cvtu64tofprtzf1");
lanemath_border_float2 to_float_rtz(lanemath_border_ulong2) LANEMATH_NAMED("cvtu64tofprtzf2");
float3_border to_float_rtz(ulong3_border) LANEMATH_NAMED("cvtu64tofprtzf3");
lanemath_wide_float4 to_float_rtz(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtzf4");
lanemath_wide_float8 to_float_rtz(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtzf8");
lanemath_wide_float16 to_float_rtz(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtzf16");
float to_float_rte(double) LANEMATH_NAMED("cvtfp64tofp32rte1");
lanemath_border_float2 to_float_rte(lanemath_border_double2) LANEMATH_NAMED("cvtfp64tofp32rte2");
float3_border to_float_rte(double3_border) LANEMATH_NAMED("cvtfp64tofp32rte3");
lanemath_wide_float4 to_float_rte(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfp64tofp32rte4");
lanemath_wide_float8 to_float_rte(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfp64tofp32rte8");
lanemath_wide_float16 to_float_rte(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfp64tofp32rte16");
float to_float_rtn(double) LANEMATH_NAMED("cvtfp64tofp32rtn1");
lanemath_border_float2 to_float_rtn(lanemath_border_double2) LANEMATH_NAMED("cvtfp64tofp32rtn2");
float3_border to_float_rtn(double3_border) LANEMATH_NAMED("cvtfp64tofp32rtn3");
lanemath_wide_float4 to_float_rtn(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtn4");
lanemath_wide_float8 to_float_rtn(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtn8");
lanemath_wide_float16 to_float_rtn(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtn16");
float to_float_rtp(double) LANEMATH_NAMED("cvtfp64tofp32rtp1");
lanemath_border_float2 to_float_rtp(lanemath_border_double2) LANEMATH_NAMED("cvtfp64tofp32rtp2");
float3_border to_float_rtp(double3_border) LANEMATH_NAMED("cvtfp64tofp32rtp3");
lanemath_wide_float4 to_float_rtp(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtp4");
lanemath_wide_float8 to_float_rtp(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtp8");
lanemath_wide_float16 to_float_rtp(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtp16");
float to_float_rtz(double) LANEMATH_NAMED("cvtfp64tofp32rtz1");
lanemath_border_float2 to_float_rtz(lanemath_border_double2) LANEMATH_NAMED("cvtfp64tofp32rtz2");
float3_border to_float_rtz(double3_border) LANEMATH_NAMED("cvtfp64tofp32rtz3");
lanemath_wide_float4 to_float_rtz(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtz4");
lanemath_wide_float8 to_float_rtz(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtz8");
lanemath_wide_float16 to_float_rtz(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtz16");
}  // namespace standard
namespace native {
double exp(double) LANEMATH_NAMED("exp1_native");
lanemath_border_double2 exp(lanemath_border_double2) LANEMATH_NAMED("exp2_native");
double3_border exp(double3_border) LANEMATH_NAMED("exp3_native");
lanemath_wide_double4 exp(lanemath_wide_double4) LANEMATH_NAMED_WIDE("exp4_native");
lanemath_wide_double8 exp(lanemath_wide_double8) LANEMATH_NAMED_WIDE("exp8_native");
lanemath_wide_double16 exp(lanemath_wide_double16) LANEMATH_NAMED_WIDE("exp16_native");
float exp(float) LANEMATH_NAMED("expf1_native");
lanemath_border_float2 exp(lanemath_border_float2) LANEMATH_NAMED("expf2_native");
float3_border exp(float3_border) LANEMATH_NAMED("expf3_native");
lanemath_border_float4 exp(lanemath_border_float4) LANEMATH_NAMED("expf4_native");
lanemath_wide_float8 exp(lanemath_wide_float8) LANEMATH_NAMED_WIDE("expf8_native");
lanemath_wide_float16 exp(lanemath_wide_float16) LANEMATH_NAMED_WIDE("expf16_native");
double exp2(double) LANEMATH_NAMED("exp21_native");
lanemath_border_double2 exp2(lanemath_border_double2) LANEMATH_NAMED("exp22_native");
double3_border exp2(double3_border) LANEMATH_NAMED("exp23_native");
lanemath_wide_double4 exp2(lanemath_wide_double4) LANEMATH_NAMED_WIDE("exp24_native");
lanemath_wide_double8 exp2(lanemath_wide_double8) LANEMATH_NAMED_WIDE("exp28_native");
lanemath_wide_double16 exp2(lanemath_wide_double16) LANEMATH_NAMED_WIDE("exp216_native");
float exp2(float) LANEMATH_NAMED("exp2f1_native");
lanemath_border_float2 exp2(lanemath_border_float2) LANEMATH_NAMED("exp2f2_native");
float3_border exp2(float3_border) LANEMATH_NAMED("exp2f3_native");
lanemath_border_float4 exp2(lanemath_border_float4) LANEMATH_NAMED("exp2f4_native");
lanemath_wide_float8 exp2(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp2f8_native");
lanemath_wide_float16 exp2(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp2f16_native");
double exp10(double) LANEMATH_NAMED("exp101_native");
lanemath_border_double2 exp10(lanemath_border_double2) LANEMATH_NAMED("exp102_native");
double3_border exp10(double3_border) LANEMATH_NAMED("exp103_native");
lanemath_wide_double4 exp10(lanemath_wide_double4) LANEMATH_NAMED_WIDE("exp104_native");
lanemath_wide_double8 exp10(lanemath_wide_double8) LANEMATH_NAMED_WIDE("exp108_native");
lanemath_wide_double16 exp10(lanemath_wide_double16) LANEMATH_NAMED_WIDE("exp1016_native");
float exp10(float) LANEMATH_NAMED("exp10f1_native");
lanemath_border_float2 exp10(lanemath_border_float2) LANEMATH_NAMED("exp10f2_native");
float3_border exp10(float3_border) LANEMATH_NAMED("exp10f3_native");
lanemath_border_float4 exp10(lanemath_border_float4) LANEMATH_NAMED("exp10f4_native");
lanemath_wide_float8 exp10(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp10f8_native");
lanemath_wide_float16 exp10(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp10f16_native");
double expm1(double) LANEMATH_NAMED("expm11_native");
lanemath_border_double2 expm1(lanemath_border_double2) LANEMATH_NAMED("expm12_native");
double3_border expm1(double3_border) LANEMATH_NAMED("expm13_native");
lanemath_wide_double4 expm1(lanemath_wide_double4) LANEMATH_NAMED_WIDE("expm14_native");
lanemath_wide_double8 expm1(lanemath_wide_double8) LANEMATH_NAMED_WIDE("expm18_native");
lanemath_wide_double16 expm1(lanemath_wide_double16) LANEMATH_NAMED_WIDE("expm116_native");
float expm1(float) LANEMATH_NAMED("expm1f1_native");
lanemath_border_float2 expm1(lanemath_border_float2) LANEMATH_NAMED("expm1f2_native");
float3_border expm1(float3_border) LANEMATH_NAMED("expm1f3_native");
lanemath_border_float4 expm1(lanemath_border_float4) LANEMATH_NAMED("expm1f4_native");
lanemath_wide_float8 expm1(lanemath_wide_float8) LANEMATH_NAMED_WIDE("expm1f8_native");
lanemath_wide_float16 expm1(lanemath_wide_float16) LANEMATH_NAMED_WIDE("expm1f16_native");
double log(double) LANEMATH_NAMED("log1_native");
lanemath_border_double2 log(lanemath_border_double2) LANEMATH_NAMED("log2_native");
double3_border log(double3_border) LANEMATH_NAMED("log3_native");
lanemath_wide_double4 log(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log4_native");
lanemath_wide_double8 log(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log8_native");
lanemath_wide_double16 log(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log16_native");
float log(float) LANEMATH_NAMED("logf1_native");
lanemath_border_float2 log(lanemath_border_float2) LANEMATH_NAMED("logf2_native");
float3_border log(float3_border) LANEMATH_NAMED("logf3_native");
lanemath_border_float4 log(lanemath_border_float4) LANEMATH_NAMED("logf4_native");
lanemath_wide_float8 log(lanemath_wide_float8) LANEMATH_NAMED_WIDE("logf8_native");
lanemath_wide_float16 log(lanemath_wide_float16) LANEMATH_NAMED_WIDE("logf16_native");
double log2(double) LANEMATH_NAMED("log21_native");
lanemath_border_double2 log2(lanemath_border_double2) LANEMATH_NAMED("log22_native");
double3_border log2(double3_border) LANEMATH_NAMED("log23_native");
lanemath_wide_double4 log2(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log24_native");
lanemath_wide_double8 log2(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log28_native");
lanemath_wide_double16 log2(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log216_native");
float log2(float) LANEMATH_NAMED("log2f1_native");
lanemath_border_float2 log2(lanemath_border_float2) LANEMATH_NAMED("log2f2_native");
float3_border log2(float3_border) LANEMATH_NAMED("log2f3_native");
lanemath_border_float4 log2(lanemath_border_float4) LANEMATH_NAMED("log2f4_native");
lanemath_wide_float8 log2(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log2f8_native");
lanemath_wide_float16 log2(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log2f16_native");
double log10(double) LANEMATH_NAMED("log101_native");
lanemath_border_double2 log10(lanemath_border_double2) LANEMATH_NAMED("log102_native");
double3_border log10(double3_border) LANEMATH_NAMED("log103_native");
lanemath_wide_double4 log10(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log104_native");
lanemath_wide_double8 log10(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log108_native");
lanemath_wide_double16 log10(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log1016_native");
float log10(float) LANEMATH_NAMED("log10f1_native");
lanemath_border_float2 log10(lanemath_border_float2) LANEMATH_NAMED("log10f2_native");
float3_border log10(float3_border) LANEMATH_NAMED("log10f3_native");
lanemath_border_float4 log10(lanemath_border_float4) LANEMATH_NAMED("log10f4_native");
lanemath_wide_float8 log10(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log10f8_native");
lanemath_wide_float16 log10(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log10f16_native");
double log1p(double) LANEMATH_NAMED("log1p1_native");
lanemath_border_double2 log1p(lanemath_border_double2) LANEMATH_NAMED("log1p2_native");
double3_border log1p(double3_border) LANEMATH_NAMED("log1p3_native");
lanemath_wide_double4 log1p(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log1p4_native");
lanemath_wide_double8 log1p(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log1p8_native");
lanemath_wide_double16 log1p(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log1p16_native");
float log1p(float) LANEMATH_NAMED("log1pf1_native");
lanemath_border_float2 log1p(lanemath_border_float2) LANEMATH_NAMED("log1pf2_native");
float3_border log1p(float3_border) LANEMATH_NAMED("log1pf3_native");
lanemath_border_float4 log1p(lanemath_border_float4) LANEMATH_NAMED("log1pf4_native");
lanemath_wide_float8 log1p(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log1pf8_native");
lanemath_wide_float16 log1p(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log1pf16_native");
double pow(double, double) LANEMATH_NAMED("pow1_native");
lanemath_border_double2 pow(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("pow2_native");
double3_border pow(double3_border, double3_border) LANEMATH_NAMED("pow3_native");
lanemath_wide_double4 pow(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("pow4_native");
lanemath_wide_double8 pow(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("pow8_native");
lanemath_wide_double16 pow(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("pow16_native");
float pow(float, float) LANEMATH_NAMED("powf1_native");
lanemath_border_float2 pow(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("powf2_native");
float3_border pow(float3_border, float3_border) LANEMATH_NAMED("powf3_native");
lanemath_border_float4 pow(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("powf4_native");
lanemath_wide_float8 pow(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("powf8_native");
lanemath_wide_float16 pow(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("powf16_native");
double powr(double, double) LANEMATH_NAMED("powr1_native");
lanemath_border_double2 powr(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("powr2_native");
double3_border powr(double3_border, double3_border) LANEMATH_NAMED("powr3_native");
lanemath_wide_double4 powr(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("powr4_native");
lanemath_wide_double8 powr(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("powr8_native");
lanemath_wide_double16 powr(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("powr16_native");
float powr(float, float) LANEMATH_NAMED("powrf1_native");
lanemath_border_float2 powr(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("powrf2_native");
float3_border powr(float3_border, float3_border) LANEMATH_NAMED("powrf3_native");
lanemath_border_float4 powr(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("powrf4_native");
lanemath_wide_float8 powr(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("powrf8_native");
lanemath_wide_float16 powr(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("powrf16_native");
double pown(double, std::int32_t) LANEMATH_NAMED("pown1_native");
lanemath_border_double2 pown(lanemath_border_double2, lanemath_border_int2) LANEMATH_NAMED("pown2_native");
double3_border pown(double3_border, int3_border) LANEMATH_NAMED("pown3_native");
lanemath_wide_double4 pown(lanemath_wide_double4, lanemath_wide_int4) LANEMATH_NAMED_WIDE("pown4_native");
lanemath_wide_double8 pown(lanemath_wide_double8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("pown8_native");
lanemath_wide_double16 pown(lanemath_wide_double16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("pown16_native");
float pown(float, std::int32_t) LANEMATH_NAMED("pownf1_native");
lanemath_border_float2 pown(lanemath_border_float2, lanemath_border_int2) LANEMATH_NAMED("pownf2_native");
float3_border pown(float3_border, int3_border) LANEMATH_NAMED("pownf3_native");
lanemath_border_float4 pown(lanemath_border_float4, lanemath_border_int4) LANEMATH_NAMED("pownf4_native");
lanemath_wide_float8 pown(lanemath_wide_float8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("pownf8_native");
lanemath_wide_float16 pown(lanemath_wide_float16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("pownf16_native");
double rootn(double, std::int32_t) LANEMATH_NAMED("rootn1_native");
lanemath_border_double2 rootn(lanemath_border_double2, lanemath_border_int2) LANEMATH_NAMED("rootn2_native");
double3_border rootn(double3_border, int3_border) LANEMATH_NAMED("rootn3_native");
lanemath_wide_double4 rootn(lanemath_wide_double4, lanemath_wide_int4) LANEMATH_NAMED_WIDE("rootn4_native");
lanemath_wide_double8 rootn(lanemath_wide_double8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("rootn8_native");
lanemath_wide_double16 rootn(lanemath_wide_double16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("rootn16_native");
float rootn(float, std::int32_t) LANEMATH_NAMED("rootnf1_native");
lanemath_border_float2 rootn(lanemath_border_float2, lanemath_border_int2) LANEMATH_NAMED("rootnf2_native");
float3_border rootn(float3_border, int3_border) LANEMATH_NAMED("rootnf3_native");
lanemath_border_float4 rootn(lanemath_border_float4, lanemath_border_int4) LANEMATH_NAMED("rootnf4_native");
lanemath_wide_float8 rootn(lanemath_wide_float8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("rootnf8_native");
lanemath_wide_float16 rootn(lanemath_wide_float16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("rootnf16_native");
double sin(double) LANEMATH_NAMED("sin1_native");
lanemath_border_double2 sin(lanemath_border_double2) LANEMATH_NAMED("sin2_native");
double3_border sin(double3_border) LANEMATH_NAMED("sin3_native");
lanemath_wide_double4 sin(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sin4_native");
lanemath_wide_double8 sin(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sin8_native");
lanemath_wide_double16 sin(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sin16_native");
float sin(float) LANEMATH_NAMED("sinf1_native");
lanemath_border_float2 sin(lanemath_border_float2) LANEMATH_NAMED("sinf2_native");
float3_border sin(float3_border) LANEMATH_NAMED("sinf3_native");
lanemath_border_float4 sin(lanemath_border_float4) LANEMATH_NAMED("sinf4_native");
lanemath_wide_float8 sin(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinf8_native");
lanemath_wide_float16 sin(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinf16_native");
double cos(double) LANEMATH_NAMED("cos1_native");
lanemath_border_double2 cos(lanemath_border_double2) LANEMATH_NAMED("cos2_native");
double3_border cos(double3_border) LANEMATH_NAMED("cos3_native");
lanemath_wide_double4 cos(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cos4_native");
lanemath_wide_double8 cos(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cos8_native");
lanemath_wide_double16 cos(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cos16_native");
float cos(float) LANEMATH_NAMED("cosf1_native");
lanemath_border_float2 cos(lanemath_border_float2) LANEMATH_NAMED("cosf2_native");
float3_border cos(float3_border) LANEMATH_NAMED("cosf3_native");
lanemath_border_float4 cos(lanemath_border_float4) LANEMATH_NAMED("cosf4_native");
lanemath_wide_float8 cos(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cosf8_native");
lanemath_wide_float16 cos(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cosf16_native");
double sincos(double, void*) LANEMATH_NAMED("sincos1_native");
lanemath_border_double2 sincos(lanemath_border_double2, void*) LANEMATH_NAMED("sincos2_native");
double3_border sincos(double3_border, void*) LANEMATH_NAMED("sincos3_native");
lanemath_wide_double4 sincos(lanemath_wide_double4, void*) LANEMATH_NAMED_WIDE("sincos4_native");
lanemath_wide_double8 sincos(lanemath_wide_double8, void*) LANEMATH_NAMED_WIDE("sincos8_native");
lanemath_wide_double16 sincos(lanemath_wide_double16, void*) LANEMATH_NAMED_WIDE("sincos16_native");
float sincos(float, void*) LANEMATH_NAMED("sincosf1_native");
lanemath_border_float2 sincos(lanemath_border_float2, void*) LANEMATH_NAMED("sincosf2_native");
float3_border sincos(float3_border, void*) LANEMATH_NAMED("sincosf3_native");
lanemath_border_float4 sincos(lanemath_border_float4, void*) LANEMATH_NAMED("sincosf4_native");
lanemath_wide_float8 sincos(lanemath_wide_float8, void*) LANEMATH_NAMED_WIDE("sincosf8_native");
lanemath_wide_float16 sincos(lanemath_wide_float16, void*) LANEMATH_NAMED_WIDE("sincosf16_native");
both<double> sincosreg(double) LANEMATH_NAMED("sincosreg1_native");
both<lanemath_border_double2> sincosreg(lanemath_border_double2) LANEMATH_NAMED("sincosreg2_native");
both<double3_border> sincosreg(double3_border) LANEMATH_NAMED("sincosreg3_native");
both<lanemath_wide_double4> sincosreg(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sincosreg4_native");
both<lanemath_wide_double8> sincosreg(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sincosreg8_native");
both<lanemath_wide_double16> sincosreg(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sincosreg16_native");
both<float> sincosreg(float) LANEMATH_NAMED("sincosregf1_native");
both<lanemath_border_float2> sincosreg(lanemath_border_float2) LANEMATH_NAMED("sincosregf2_native");
both<float3_border> sincosreg(float3_border) LANEMATH_NAMED("sincosregf3_native");
both<lanemath_border_float4> sincosreg(lanemath_border_float4) LANEMATH_NAMED("sincosregf4_native");
both<lanemath_wide_float8> sincosreg(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sincosregf8_native");
both<lanemath_wide_float16> sincosreg(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sincosregf16_native");
double tan(double) LANEMATH_NAMED("tan1_native");
lanemath_border_double2 tan(lanemath_border_double2) LANEMATH_NAMED("tan2_native");
double3_border tan(double3_border) LANEMATH_NAMED("tan3_native");
lanemath_wide_double4 tan(lanemath_wide_double4) LANEMATH_NAMED_WIDE("tan4_native");
lanemath_wide_double8 tan(lanemath_wide_double8) LANEMATH_NAMED_WIDE("tan8_native");
lanemath_wide_double16 tan(lanemath_wide_double16) LANEMATH_NAMED_WIDE("tan16_native");
float tan(float) LANEMATH_NAMED("tanf1_native");
lanemath_border_float2 tan(lanemath_border_float2) LANEMATH_NAMED("tanf2_native");
float3_border tan(float3_border) LANEMATH_NAMED("tanf3_native");
lanemath_border_float4 tan(lanemath_border_float4) LANEMATH_NAMED("tanf4_native");
lanemath_wide_float8 tan(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanf8_native");
lanemath_wide_float16 tan(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanf16_native");
double sinpi(double) LANEMATH_NAMED("sinpi1_native");
lanemath_border_double2 sinpi(lanemath_border_double2) LANEMATH_NAMED("sinpi2_native");
double3_border sinpi(double3_border) LANEMATH_NAMED("sinpi3_native");
lanemath_wide_double4 sinpi(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sinpi4_native");
lanemath_wide_double8 sinpi(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sinpi8_native");
lanemath_wide_double16 sinpi(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sinpi16_native");
float sinpi(float) LANEMATH_NAMED("sinpif1_native");
lanemath_border_float2 sinpi(lanemath_border_float2) LANEMATH_NAMED("sinpif2_native");
float3_border sinpi(float3_border) LANEMATH_NAMED("sinpif3_native");
lanemath_border_float4 sinpi(lanemath_border_float4) LANEMATH_NAMED("sinpif4_native");
lanemath_wide_float8 sinpi(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinpif8_native");
lanemath_wide_float16 sinpi(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinpif16_native");
double cospi(double) LANEMATH_NAMED("cospi1_native");
lanemath_border_double2 cospi(lanemath_border_double2) LANEMATH_NAMED("cospi2_native");
double3_border cospi(double3_border) LANEMATH_NAMED("cospi3_native");
lanemath_wide_double4 cospi(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cospi4_native");
lanemath_wide_double8 cospi(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cospi8_native");
lanemath_wide_double16 cospi(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cospi16_native");
float cospi(float) LANEMATH_NAMED("cospif1_native");
lanemath_border_float2 cospi(lanemath_border_float2) LANEMATH_NAMED("cospif2_native");
float3_border cospi(float3_border) LANEMATH_NAMED("cospif3_native");
lanemath_border_float4 cospi(lanemath_border_float4) LANEMATH_NAMED("cospif4_native");
lanemath_wide_float8 cospi(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cospif8_native");
lanemath_wide_float16 cospi(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cospif16_native");
double tanpi(double) LANEMATH_NAMED("tanpi1_native");
lanemath_border_double2 tanpi(lanemath_border_double2) LANEMATH_NAMED("tanpi2_native");
double3_border tanpi(double3_border) LANEMATH_NAMED("tanpi3_native");
lanemath_wide_double4 tanpi(lanemath_wide_double4) LANEMATH_NAMED_WIDE("tanpi4_native");
lanemath_wide_double8 tanpi(lanemath_wide_double8) LANEMATH_NAMED_WIDE("tanpi8_native");
lanemath_wide_double16 tanpi(lanemath_wide_double16) LANEMATH_NAMED_WIDE("tanpi16_native");
float tanpi(float) LANEMATH_NAMED("tanpif1_native");
lanemath_border_float2 tanpi(lanemath_border_float2) LANEMATH_NAMED("tanpif2_native");
float3_border tanpi(float3_border) LANEMATH_NAMED("tanpif3_native");
lanemath_border_float4 tanpi(lanemath_border_float4) LANEMATH_NAMED("tanpif4_native");
lanemath_wide_float8 tanpi(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanpif8_native");
lanemath_wide_float16 tanpi(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanpif16_native");
double asin(double) LANEMATH_NAMED("asin1_native");
lanemath_border_double2 asin(lanemath_border_double2) LANEMATH_NAMED("asin2_native");
double3_border asin(double3_border) LANEMATH_NAMED("asin3_native");
lanemath_wide_double4 asin(lanemath_wide_double4) LANEMATH_NAMED_WIDE("asin4_native");
lanemath_wide_double8 asin(lanemath_wide_double8) LANEMATH_NAMED_WIDE("asin8_native");
lanemath_wide_double16 asin(lanemath_wide_double16) LANEMATH_NAMED_WIDE("asin16_native");
float asin(float) LANEMATH_NAMED("asinf1_native");
lanemath_border_float2 asin(lanemath_border_float2) LANEMATH_NAMED("asinf2_native");
float3_border asin(float3_border) LANEMATH_NAMED("asinf3_native");
lanemath_border_float4 asin(lanemath_border_float4) LANEMATH_NAMED("asinf4_native");
lanemath_wide_float8 asin(lanemath_wide_float8) LANEMATH_NAMED_WIDE("asinf8_native");
lanemath_wide_float16 asin(lanemath_wide_float16) LANEMATH_NAMED_WIDE("asinf16_native");
double acos(double) LANEMATH_NAMED("acos1_native");
lanemath_border_double2 acos(lanemath_border_double2) LANEMATH_NAMED("acos2_native");
double3_border acos(double3_border) LANEMATH_NAMED("acos3_native");
lanemath_wide_double4 acos(lanemath_wide_double4) LANEMATH_NAMED_WIDE("acos4_native");
lanemath_wide_double8 acos(lanemath_wide_double8) LANEMATH_NAMED_WIDE("acos8_native");
lanemath_wide_double16 acos(lanemath_wide_double16) LANEMATH_NAMED_WIDE("acos16_native");
float acos(float) LANEMATH_NAMED("acosf1_native");
lanemath_border_float2 acos(lanemath_border_float2) LANEMATH_NAMED("acosf2_native");
float3_border acos(float3_border) LANEMATH_NAMED("acosf3_native");
lanemath_border_float4 acos(lanemath_border_float4) LANEMATH_NAMED("acosf4_native");
lanemath_wide_float8 acos(lanemath_wide_float8) LANEMATH_NAMED_WIDE("acosf8_native");
lanemath_wide_float16 acos(lanemath_wide_float16) LANEMATH_NAMED_WIDE("acosf16_native");
double asinpi(double) LANEMATH_NAMED("asinpi1_native");
lanemath_border_double2 asinpi(lanemath_border_double2) LANEMATH_NAMED("asinpi2_native");
double3_border asinpi(double3_border) LANEMATH_NAMED("asinpi3_native");
lanemath_wide_double4 asinpi(lanemath_wide_double4) LANEMATH_NAMED_WIDE("asinpi4_native");
lanemath_wide_double8 asinpi(lanemath_wide_double8) LANEMATH_NAMED_WIDE("asinpi8_native");
lanemath_wide_double16 asinpi(lanemath_wide_double16) LANEMATH_NAMED_WIDE("asinpi16_native");
float asinpi(float) LANEMATH_NAMED("asinpif1_native");
lanemath_border_float2 asinpi(lanemath_border_float2) LANEMATH_NAMED("asinpif2_native");
float3_border asinpi(float3_border) LANEMATH_NAMED("asinpif3_native");
lanemath_border_float4 asinpi(lanemath_border_float4) LANEMATH_NAMED("asinpif4_native");
lanemath_wide_float8 asinpi(lanemath_wide_float8) LANEMATH_NAMED_WIDE("asinpif8_native");
lanemath_wide_float16 asinpi(lanemath_wide_float16) LANEMATH_NAMED_WIDE("asinpif16_native");
double acospi(double) LANEMATH_NAMED("acospi1_native");
lanemath_border_double2 acospi(lanemath_border_double2) LANEMATH_NAMED("acospi2_native");
double3_border acospi(double3_border) LANEMATH_NAMED("acospi3_native");
lanemath_wide_double4 acospi(lanemath_wide_double4) LANEMATH_NAMED_WIDE("acospi4_native");
lanemath_wide_double8 acospi(lanemath_wide_double8) LANEMATH_NAMED_WIDE("acospi8_native");
lanemath_wide_double16 acospi(lanemath_wide_double16) LANEMATH_NAMED_WIDE("acospi16_native");
float acospi(float) LANEMATH_NAMED("acospif1_native");
lanemath_border_float2 acospi(lanemath_border_float2) LANEMATH_NAMED("acospif2_native");
float3_border acospi(float3_border) LANEMATH_NAMED("acospif3_native");
lanemath_border_float4 acospi(lanemath_border_float4) LANEMATH_NAMED("acospif4_native");
lanemath_wide_float8 acospi(lanemath_wide_float8) LANEMATH_NAMED_WIDE("acospif8_native");
lanemath_wide_float16 acospi(lanemath_wide_float16) LANEMATH_NAMED_WIDE("acospif16_native");
double atan(double) LANEMATH_NAMED("atan1_native");
lanemath_border_double2 atan(lanemath_border_double2) LANEMATH_NAMED("atan2_native");
double3_border atan(double3_border) LANEMATH_NAMED("atan3_native");
lanemath_wide_double4 atan(lanemath_wide_double4) LANEMATH_NAMED_WIDE("atan4_native");
lanemath_wide_double8 atan(lanemath_wide_double8) LANEMATH_NAMED_WIDE("atan8_native");
lanemath_wide_double16 atan(lanemath_wide_double16) LANEMATH_NAMED_WIDE("atan16_native");
float atan(float) LANEMATH_NAMED("atanf1_native");
lanemath_border_float2 atan(lanemath_border_float2) LANEMATH_NAMED("atanf2_native");
float3_border atan(float3_border) LANEMATH_NAMED("atanf3_native");
lanemath_border_float4 atan(lanemath_border_float4) LANEMATH_NAMED("atanf4_native");
lanemath_wide_float8 atan(lanemath_wide_float8) LANEMATH_NAMED_WIDE("atanf8_native");
lanemath_wide_float16 atan(lanemath_wide_float16) LANEMATH_NAMED_WIDE("atanf16_native");
double atanpi(double) LANEMATH_NAMED("atanpi1_native");
lanemath_border_double2 atanpi(lanemath_border_double2) LANEMATH_NAMED("atanpi2_native");
double3_border atanpi(double3_border) LANEMATH_NAMED("atanpi3_native");
lanemath_wide_double4 atanpi(lanemath_wide_double4) LANEMATH_NAMED_WIDE("atanpi4_native");
lanemath_wide_double8 atanpi(lanemath_wide_double8) LANEMATH_NAMED_WIDE("atanpi8_native");
lanemath_wide_double16 atanpi(lanemath_wide_double16) LANEMATH_NAMED_WIDE("atanpi16_native");
float atanpi(float) LANEMATH_NAMED("atanpif1_native");
lanemath_border_float2 atanpi(lanemath_border_float2) LANEMATH_NAMED("atanpif2_native");
float3_border atanpi(float3_border) LANEMATH_NAMED("atanpif3_native");
lanemath_border_float4 atanpi(lanemath_border_float4) LANEMATH_NAMED("atanpif4_native");
lanemath_wide_float8 atanpi(lanemath_wide_float8) LANEMATH_NAMED_WIDE("atanpif8_native");
lanemath_wide_float16 atanpi(lanemath_wide_float16) LANEMATH_NAMED_WIDE("atanpif16_native");
double atan2(double, double) LANEMATH_NAMED("atan21_native");
lanemath_border_double2 atan2(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("atan22_native");
double3_border atan2(double3_border, double3_border) LANEMATH_NAMED("atan23_native");
lanemath_wide_double4 atan2(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("atan24_native");
lanemath_wide_double8 atan2(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("atan28_native");
lanemath_wide_double16 atan2(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("atan216_native");
float atan2(float, float) LANEMATH_NAMED("atan2f1_native");
lanemath_border_float2 atan2(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("atan2f2_native");
float3_border atan2(float3_border, float3_border) LANEMATH_NAMED("atan2f3_native");
lanemath_border_float4 atan2(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("atan2f4_native");
lanemath_wide_float8 atan2(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("atan2f8_native");
lanemath_wide_float16 atan2(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("atan2f16_native");
double atan2pi(double, double) LANEMATH_NAMED("atan2pi1_native");
lanemath_border_double2 atan2pi(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("atan2pi2_native");
double3_border atan2pi(double3_border, double3_border) LANEMATH_NAMED("atan2pi3_native");
lanemath_wide_double4 atan2pi(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("atan2pi4_native");
lanemath_wide_double8 atan2pi(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("atan2pi8_native");
lanemath_wide_double16 atan2pi(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("atan2pi16_native");
float atan2pi(float, float) LANEMATH_NAMED("atan2pif1_native");
lanemath_border_float2 atan2pi(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("atan2pif2_native");
float3_border atan2pi(float3_border, float3_border) LANEMATH_NAMED("atan2pif3_native");
lanemath_border_float4 atan2pi(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("atan2pif4_native");
lanemath_wide_float8 atan2pi(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("atan2pif8_native");
lanemath_wide_float16 atan2pi(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("atan2pif16_native");
double sinh(double) LANEMATH_NAMED("sinh1_native");
lanemath_border_double2 sinh(lanemath_border_double2) LANEMATH_NAMED("sinh2_native");
double3_border sinh(double3_border) LANEMATH_NAMED("sinh3_native");
lanemath_wide_double4 sinh(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sinh4_native");
lanemath_wide_double8 sinh(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sinh8_native");
lanemath_wide_double16 sinh(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sinh16_native");
float sinh(float) LANEMATH_NAMED("sinhf1_native");
lanemath_border_float2 sinh(lanemath_border_float2) LANEMATH_NAMED("sinhf2_native");
float3_border sinh(float3_border) LANEMATH_NAMED("sinhf3_native");
lanemath_border_float4 sinh(lanemath_border_float4) LANEMATH_NAMED("sinhf4_native");
lanemath_wide_float8 sinh(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinhf8_native");
lanemath_wide_float16 sinh(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinhf16_native");
double cosh(double) LANEMATH_NAMED("cosh1_native");
lanemath_border_double2 cosh(lanemath_border_double2) LANEMATH_NAMED("cosh2_native");
double3_border cosh(double3_border) LANEMATH_NAMED("cosh3_native");
lanemath_wide_double4 cosh(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cosh4_native");
lanemath_wide_double8 cosh(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cosh8_native");
lanemath_wide_double16 cosh(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cosh16_native");
float cosh(float) LANEMATH_NAMED("coshf1_native");
lanemath_border_float2 cosh(lanemath_border_float2) LANEMATH_NAMED("coshf2_native");
float3_border cosh(float3_border) LANEMATH_NAMED("coshf3_native");
lanemath_border_float4 cosh(lanemath_border_float4) LANEMATH_NAMED("coshf4_native");
lanemath_wide_float8 cosh(lanemath_wide_float8) LANEMATH_NAMED_WIDE("coshf8_native");
lanemath_wide_float16 cosh(lanemath_wide_float16) LANEMATH_NAMED_WIDE("coshf16_native");
double tanh(double) LANEMATH_NAMED("tanh1_native");
lanemath_border_double2 tanh(lanemath_border_double2) LANEMATH_NAMED("tanh2_native");
double3_border tanh(double3_border) LANEMATH_NAMED("tanh3_native");
lanemath_wide_double4 tanh(lanemath_wide_double4) LANEMATH_NAMED_WIDE("tanh4_native");
lanemath_wide_double8 tanh(lanemath_wide_double8) LANEMATH_NAMED_WIDE("tanh8_native");
lanemath_wide_double16 tanh(lanemath_wide_double16) LANEMATH_NAMED_WIDE("tanh16_native");
float tanh(float) LANEMATH_NAMED("tanhf1_native");
lanemath_border_float2 tanh(lanemath_border_float2) LANEMATH_NAMED("tanhf2_native");
float3_border tanh(float3_border) LANEMATH_NAMED("tanhf3_native");
lanemath_border_float4 tanh(lanemath_border_float4) LANEMATH_NAMED("tanhf4_native");
lanemath_wide_float8 tanh(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanhf8_native");
lanemath_wide_float16 tanh(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanhf16_native");
double asinh(double) LANEMATH_NAMED("asinh1_native");
lanemath_border_double2 asinh(lanemath_border_double2) LANEMATH_NAMED("asinh2_native");
double3_border asinh(double3_border) LANEMATH_NAMED("asinh3_native");
lanemath_wide_double4 asinh(lanemath_wide_double4) LANEMATH_NAMED_WIDE("asinh4_native");
lanemath_wide_double8 asinh(lanemath_wide_double8) LANEMATH_NAMED_WIDE("asinh8_native");
lanemath_wide_double16 asinh(lanemath_wide_double16) LANEMATH_NAMED_WIDE("asinh16_native");
float asinh(float) LANEMATH_NAMED("asinhf1_native");
lanemath_border_float2 asinh(lanemath_border_float2) LANEMATH_NAMED("asinhf2_native");
float3_border asinh(float3_border) LANEMATH_NAMED("asinhf3_native");
lanemath_border_float4 asinh(lanemath_border_float4) LANEMATH_NAMED("asinhf4_native");
lanemath_wide_float8 asinh(lanemath_wide_float8) LANEMATH_NAMED_WIDE("asinhf8_native");
lanemath_wide_float16 asinh(lanemath_wide_float16) LANEMATH_NAMED_WIDE("asinhf16_native");
double acosh(double) LANEMATH_NAMED("acosh1_native");
lanemath_border_double2 acosh(lanemath_border_double2) LANEMATH_NAMED("acosh2_native");
double3_border acosh(double3_border) LANEMATH_NAMED("acosh3_native");
lanemath_wide_double4 acosh(lanemath_wide_double4) LANEMATH_NAMED_WIDE("acosh4_native");
lanemath_wide_double8 acosh(lanemath_wide_double8) LANEMATH_NAMED_WIDE("acosh8_native");
lanemath_wide_double16 acosh(lanemath_wide_double16) LANEMATH_NAMED_WIDE("acosh16_native");
float acosh(float) LANEMATH_NAMED("acoshf1_native");
lanemath_border_float2 acosh(lanemath_border_float2) LANEMATH_NAMED("acoshf2_native");
float3_border acosh(float3_border) LANEMATH_NAMED("acoshf3_native");
lanemath_border_float4 acosh(lanemath_border_float4) LANEMATH_NAMED("acoshf4_native");
lanemath_wide_float8 acosh(lanemath_wide_float8) LANEMATH_NAMED_WIDE("acoshf8_native");
lanemath_wide_float16 acosh(lanemath_wide_float16) LANEMATH_NAMED_WIDE("acoshf16_native");
double atanh(double) LANEMATH_NAMED("atanh1_native");
lanemath_border_double2 atanh(lanemath_border_double2) LANEMATH_NAMED("atanh2_native");
double3_border atanh(double3_border) LANEMATH_NAMED("atanh3_native");
lanemath_wide_double4 atanh(lanemath_wide_double4) LANEMATH_NAMED_WIDE("atanh4_native");
lanemath_wide_double8 atanh(lanemath_wide_double8) LANEMATH_NAMED_WIDE("atanh8_native");
lanemath_wide_double16 atanh(lanemath_wide_double16) LANEMATH_NAMED_WIDE("atanh16_native");
float atanh(float) LANEMATH_NAMED("atanhf1_native");
lanemath_border_float2 atanh(lanemath_border_float2) LANEMATH_NAMED("atanhf2_native");
float3_border atanh(float3_border) LANEMATH_NAMED("atanhf3_native");
lanemath_border_float4 atanh(lanemath_border_float4) LANEMATH_NAMED("atanhf4_native");
lanemath_wide_float8 atanh(lanemath_wide_float8) LANEMATH_NAMED_WIDE("atanhf8_native");
lanemath_wide_float16 atanh(lanemath_wide_float16) LANEMATH_NAMED_WIDE("atanhf16_native");
double div(double, double) LANEMATH_NAMED("div1_native");
lanemath_border_double2 div(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("div2_native");
double3_border div(double3_border, double3_border) LANEMATH_NAMED("div3_native");
lanemath_wide_double4 div(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("div4_native");
lanemath_wide_double8 div(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("div8_native");
lanemath_wide_double16 div(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("div16_native");
float div(float, float) LANEMATH_NAMED("divf1_native");
lanemath_border_float2 div(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("divf2_native");
float3_border div(float3_border, float3_border) LANEMATH_NAMED("divf3_native");
lanemath_border_float4 div(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("divf4_native");
lanemath_wide_float8 div(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("divf8_native");
lanemath_wide_float16 div(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("divf16_native");
double inv(double) LANEMATH_NAMED("inv1_native");
lanemath_border_double2 inv(lanemath_border_double2) LANEMATH_NAMED("inv2_native");
double3_border inv(double3_border) LANEMATH_NAMED("inv3_native");
lanemath_wide_double4 inv(lanemath_wide_double4) LANEMATH_NAMED_WIDE("inv4_native");
lanemath_wide_double8 inv(lanemath_wide_double8) LANEMATH_NAMED_WIDE("inv8_native");
lanemath_wide_double16 inv(lanemath_wide_double16) LANEMATH_NAMED_WIDE("inv16_native");
float inv(float) LANEMATH_NAMED("invf1_native");
lanemath_border_float2 inv(lanemath_border_float2) LANEMATH_NAMED("invf2_native");
float3_border inv(float3_border) LANEMATH_NAMED("invf3_native");
lanemath_border_float4 inv(lanemath_border_float4) LANEMATH_NAMED("invf4_native");
lanemath_wide_float8 inv(lanemath_wide_float8) LANEMATH_NAMED_WIDE("invf8_native");
lanemath_wide_float16 inv(lanemath_wide_float16) LANEMATH_NAMED_WIDE("invf16_native");
double sqrt(double) LANEMATH_NAMED("sqrt1_native");
lanemath_border_double2 sqrt(lanemath_border_double2) LANEMATH_NAMED("sqrt2_native");
double3_border sqrt(double3_border) LANEMATH_NAMED("sqrt3_native");
lanemath_wide_double4 sqrt(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sqrt4_native");
lanemath_wide_double8 sqrt(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sqrt8_native");
lanemath_wide_double16 sqrt(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sqrt16_native");
float sqrt(float) LANEMATH_NAMED("sqrtf1_native");
lanemath_border_float2 sqrt(lanemath_border_float2) LANEMATH_NAMED("sqrtf2_native");
float3_border sqrt(float3_border) LANEMATH_NAMED("sqrtf3_native");
lanemath_border_float4 sqrt(lanemath_border_float4) LANEMATH_NAMED("sqrtf4_native");
lanemath_wide_float8 sqrt(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sqrtf8_native");
lanemath_wide_float16 sqrt(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sqrtf16_native");
double rsqrt(double) LANEMATH_NAMED("rsqrt1_native");
lanemath_border_double2 rsqrt(lanemath_border_double2) LANEMATH_NAMED("rsqrt2_native");
double3_border rsqrt(double3_border) LANEMATH_NAMED("rsqrt3_native");
lanemath_wide_double4 rsqrt(lanemath_wide_double4) LANEMATH_NAMED_WIDE("rsqrt4_native");
lanemath_wide_double8 rsqrt(lanemath_wide_double8) LANEMATH_NAMED_WIDE("rsqrt8_native");
lanemath_wide_double16 rsqrt(lanemath_wide_double16) LANEMATH_NAMED_WIDE("rsqrt16_native");
float rsqrt(float) LANEMATH_NAMED("rsqrtf1_native");
lanemath_border_float2 rsqrt(lanemath_border_float2) LANEMATH_NAMED("rsqrtf2_native");
float3_border rsqrt(float3_border) LANEMATH_NAMED("rsqrtf3_native");
lanemath_border_float4 rsqrt(lanemath_border_float4) LANEMATH_NAMED("rsqrtf4_native");
lanemath_wide_float8 rsqrt(lanemath_wide_float8) LANEMATH_NAMED_WIDE("rsqrtf8_native");
lanemath_wide_float16 rsqrt(lanemath_wide_float16) LANEMATH_NAMED_WIDE("rsqrtf16_native");
double cbrt(double) LANEMATH_NAMED("cbrt1_native");
lanemath_border_double2 cbrt(lanemath_border_double2) LANEMATH_NAMED("cbrt2_native");
double3_border cbrt(double3_border) LANEMATH_NAMED("cbrt3_native");
lanemath_wide_double4 cbrt(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cbrt4_native");
lanemath_wide_double8 cbrt(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cbrt8_native");
lanemath_wide_double16 cbrt(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cbrt16_native");
float cbrt(float) LANEMATH_NAMED("cbrtf1_native");
lanemath_border_float2 cbrt(lanemath_border_float2) LANEMATH_NAMED("cbrtf2_native");
float3_border cbrt(float3_border) LANEMATH_NAMED("cbrtf3_native");
lanemath_border_float4 cbrt(lanemath_border_float4) LANEMATH_NAMED("cbrtf4_native");
lanemath_wide_float8 cbrt(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cbrtf8_native");
lanemath_wide_float16 cbrt(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cbrtf16_native");
double rcbrt(double) LANEMATH_NAMED("rcbrt1_native");
lanemath_border_double2 rcbrt(lanemath_border_double2) LANEMATH_NAMED("rcbrt2_native");
double3_border rcbrt(double3_border) LANEMATH_NAMED("rcbrt3_native");
lanemath_wide_double4 rcbrt(lanemath_wide_double4) LANEMATH_NAMED_WIDE("rcbrt4_native");
lanemath_wide_double8 rcbrt(lanemath_wide_double8) LANEMATH_NAMED_WIDE("rcbrt8_native");
lanemath_wide_double16 rcbrt(lanemath_wide_double16) LANEMATH_NAMED_WIDE("rcbrt16_native");
float rcbrt(float) LANEMATH_NAMED("rcbrtf1_native");
lanemath_border_float2 rcbrt(lanemath_border_float2) LANEMATH_NAMED("rcbrtf2_native");
float3_border rcbrt(float3_border) LANEMATH_NAMED("rcbrtf3_native");
lanemath_border_float4 rcbrt(lanemath_border_float4) LANEMATH_NAMED("rcbrtf4_native");
lanemath_wide_float8 rcbrt(lanemath_wide_float8) LANEMATH_NAMED_WIDE("rcbrtf8_native");
lanemath_wide_float16 rcbrt(lanemath_wide_float16) LANEMATH_NAMED_WIDE("rcbrtf16_native");
double hypot(double, double) LANEMATH_NAMED("hypot1_native");
lanemath_border_double2 hypot(lanemath_border_double2, lanemath_border_double2) LANEMATH_NAMED("hypot2_native");
double3_border hypot(double3_border, double3_border) LANEMATH_NAMED("hypot3_native");
lanemath_wide_double4 hypot(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("hypot4_native");
lanemath_wide_double8 hypot(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("hypot8_native");
lanemath_wide_double16 hypot(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("hypot16_native");
float hypot(float, float) LANEMATH_NAMED("hypotf1_native");
lanemath_border_float2 hypot(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("hypotf2_native");
float3_border hypot(float3_border, float3_border) LANEMATH_NAMED("hypotf3_native");
lanemath_border_float4 hypot(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("hypotf4_native");
lanemath_wide_float8 hypot(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("hypotf8_native");
lanemath_wide_float16 hypot(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("hypotf16_native");
double erf(double) LANEMATH_NAMED("erf1_native");
lanemath_border_double2 erf(lanemath_border_double2) LANEMATH_NAMED("erf2_native");
double3_border erf(double3_border) LANEMATH_NAMED("erf3_native");
lanemath_wide_double4 erf(lanemath_wide_double4) LANEMATH_NAMED_WIDE("erf4_native");
lanemath_wide_double8 erf(lanemath_wide_double8) LANEMATH_NAMED_WIDE("erf8_native");
lanemath_wide_double16 erf(lanemath_wide_double16) LANEMATH_NAMED_WIDE("erf16_native");
float erf(float) LANEMATH_NAMED("erff1_native");
lanemath_border_float2 erf(lanemath_border_float2) LANEMATH_NAMED("erff2_native");
float3_border erf(float3_border) LANEMATH_NAMED("erff3_native");
lanemath_border_float4 erf(lanemath_border_float4) LANEMATH_NAMED("erff4_native");
lanemath_wide_float8 erf(lanemath_wide_float8) LANEMATH_NAMED_WIDE("erff8_native");
lanemath_wide_float16 erf(lanemath_wide_float16) LANEMATH_NAMED_WIDE("erff16_native");
double erfc(double) LANEMATH_NAMED("erfc1_native");
lanemath_border_double2 erfc(lanemath_border_double2) LANEMATH_NAMED("erfc2_native");
double3_border erfc(double3_border) LANEMATH_NAMED("erfc3_native");
lanemath_wide_double4 erfc(lanemath_wide_double4) LANEMATH_NAMED_WIDE("erfc4_native");
lanemath_wide_double8 erfc(lanemath_wide_double8) LANEMATH_NAMED_WIDE("erfc8_native");
lanemath_wide_double16 erfc(lanemath_wide_double16) LANEMATH_NAMED_WIDE("erfc16_native");
float erfc(float) LANEMATH_NAMED("erfcf1_native");
lanemath_border_float2 erfc(lanemath_border_float2) LANEMATH_NAMED("erfcf2_native");
float3_border erfc(float3_border) LANEMATH_NAMED("erfcf3_native");
lanemath_border_float4 erfc(lanemath_border_float4) LANEMATH_NAMED("erfcf4_native");
lanemath_wide_float8 erfc(lanemath_wide_float8) LANEMATH_NAMED_WIDE("erfcf8_native");
lanemath_wide_float16 erfc(lanemath_wide_float16) LANEMATH_NAMED_WIDE("erfcf16_native");
}  // namespace native
namespace half {
float exp(float) LANEMATH_NAMED("expf1_half");
lanemath_border_float2 exp(lanemath_border_float2) LANEMATH_NAMED("expf2_half");
float3_border exp(float3_border) LANEMATH_NAMED("expf3_half");
lanemath_border_float4 exp(lanemath_border_float4) LANEMATH_NAMED("expf4_half");
lanemath_wide_float8 exp(lanemath_wide_float8) LANEMATH_NAMED_WIDE("expf8_half");
lanemath_wide_float16 exp(lanemath_wide_float16) LANEMATH_NAMED_WIDE("expf16_half");
float exp2(float) LANEMATH_NAMED("exp2f1_half");
lanemath_border_float2 exp2(lanemath_border_float2) LANEMATH_NAMED("exp2f2_half");
float3_border exp2(float3_border) LANEMATH_NAMED("exp2f3_half");
lanemath_border_float4 exp2(lanemath_border_float4) LANEMATH_NAMED("exp2f4_half");
lanemath_wide_float8 exp2(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp2f8_half");
lanemath_wide_float16 exp2(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp2f16_half");
float exp10(float) LANEMATH_NAMED("exp10f1_half");
lanemath_border_float2 exp10(lanemath_border_float2) LANEMATH_NAMED("exp10f2_half");
float3_border exp10(float3_border) LANEMATH_NAMED("exp10f3_half");
lanemath_border_float4 exp10(lanemath_border_float4) LANEMATH_NAMED("exp10f4_half");
lanemath_wide_float8 exp10(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp10f8_half");
lanemath_wide_float16 exp10(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp10f16_half");
float log(float) LANEMATH_NAMED("logf1_half");
lanemath_border_float2 log(lanemath_border_float2) LANEMATH_NAMED("logf2_half");
float3_border log(float3_border) LANEMATH_NAMED("logf3_half");
lanemath_border_float4 log(lanemath_border_float4) LANEMATH_NAMED("logf4_half");
lanemath_wide_float8 log(lanemath_wide_float8) LANEMATH_NAMED_WIDE("logf8_half");
lanemath_wide_float16 log(lanemath_wide_float16) LANEMATH_NAMED_WIDE("logf16_half");
float log2(float) LANEMATH_NAMED("log2f1_half");
lanemath_border_float2 log2(lanemath_border_float2) LANEMATH_NAMED("log2f2_half");
float3_border log2(float3_border) LANEMATH_NAMED("log2f3_half");
lanemath_border_float4 log2(lanemath_border_float4) LANEMATH_NAMED("log2f4_half");
lanemath_wide_float8 log2(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log2f8_half");
lanemath_wide_float16 log2(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log2f16_half");
float log10(float) LANEMATH_NAMED("log10f1_half");
lanemath_border_float2 log10(lanemath_border_float2) LANEMATH_NAMED("log10f2_half");
float3_border log10(float3_border) LANEMATH_NAMED("log10f3_half");
lanemath_border_float4 log10(lanemath_border_float4) LANEMATH_NAMED("log10f4_half");
lanemath_wide_float8 log10(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log10f8_half");
lanemath_wide_float16 log10(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log10f16_half");
float powr(float, float) LANEMATH_NAMED("powrf1_half");
lanemath_border_float2 powr(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("powrf2_half");
float3_border powr(float3_border, float3_border) LANEMATH_NAMED("powrf3_half");
lanemath_border_float4 powr(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("powrf4_half");
lanemath_wide_float8 powr(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("powrf8_half");
lanemath_wide_float16 powr(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("powrf16_half");
float sin(float) LANEMATH_NAMED("sinf1_half");
lanemath_border_float2 sin(lanemath_border_float2) LANEMATH_NAMED("sinf2_half");
float3_border sin(float3_border) LANEMATH_NAMED("sinf3_half");
lanemath_border_float4 sin(lanemath_border_float4) LANEMATH_NAMED("sinf4_half");
lanemath_wide_float8 sin(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinf8_half");
lanemath_wide_float16 sin(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinf16_half");
float cos(float) LANEMATH_NAMED("cosf1_half");
lanemath_border_float2 cos(lanemath_border_float2) LANEMATH_NAMED("cosf2_half");
float3_border cos(float3_border) LANEMATH_NAMED("cosf3_half");
lanemath_border_float4 cos(lanemath_border_float4) LANEMATH_NAMED("cosf4_half");
lanemath_wide_float8 cos(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cosf8_half");
lanemath_wide_float16 cos(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cosf16_half");
float tan(float) LANEMATH_NAMED("tanf1_half");
lanemath_border_float2 tan(lanemath_border_float2) LANEMATH_NAMED("tanf2_half");
float3_border tan(float3_border) LANEMATH_NAMED("tanf3_half");
lanemath_border_float4 tan(lanemath_border_float4) LANEMATH_NAMED("tanf4_half");
lanemath_wide_float8 tan(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanf8_half");
lanemath_wide_float16 tan(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanf16_half");
float div(float, float) LANEMATH_NAMED("divf1_half");
lanemath_border_float2 div(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("divf2_half");
float3_border div(float3_border, float3_border) LANEMATH_NAMED("divf3_half");
lanemath_border_float4 div(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("divf4_half");
lanemath_wide_float8 div(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("divf8_half");
lanemath_wide_float16 div(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("divf16_half");
float inv(float) LANEMATH_NAMED("invf1_half");
lanemath_border_float2 inv(lanemath_border_float2) LANEMATH_NAMED("invf2_half");
float3_border inv(float3_border) LANEMATH_NAMED("invf3_half");
lanemath_border_float4 inv(lanemath_border_float4) LANEMATH_NAMED("invf4_half");
lanemath_wide_float8 inv(lanemath_wide_float8) LANEMATH_NAMED_WIDE("invf8_half");
lanemath_wide_float16 inv(lanemath_wide_float16) LANEMATH_NAMED_WIDE("invf16_half");
float sqrt(float) LANEMATH_NAMED("sqrtf1_half");
lanemath_border_float2 sqrt(lanemath_border_float2) LANEMATH_NAMED("sqrtf2_half");
float3_border sqrt(float3_border) LANEMATH_NAMED("sqrtf3_half");
lanemath_border_float4 sqrt(lanemath_border_float4) LANEMATH_NAMED("sqrtf4_half");
lanemath_wide_float8 sqrt(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sqrtf8_half");
lanemath_wide_float16 sqrt(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sqrtf16_half");
float rsqrt(float) LANEMATH_NAMED("rsqrtf1_half");
lanemath_border_float2 rsqrt(lanemath_border_float2) LANEMATH_NAMED("rsqrtf2_half");
float3_border rsqrt(float3_border) LANEMATH_NAMED("rsqrtf3_half");
lanemath_border_float4 rsqrt(lanemath_border_float4) LANEMATH_NAMED("rsqrtf4_half");
lanemath_wide_float8 rsqrt(lanemath_wide_float8) LANEMATH_NAMED_WIDE("rsqrtf8_half");
lanemath_wide_float16 rsqrt(lanemath_wide_float16) LANEMATH_NAMED_WIDE("rsqrtf16_half");
}  // namespace half
namespace rm {
float exp(float) LANEMATH_NAMED("expf1_rm");
lanemath_border_float2 exp(lanemath_border_float2) LANEMATH_NAMED("expf2_rm");
float3_border exp(float3_border) LANEMATH_NAMED("expf3_rm");
lanemath_border_float4 exp(lanemath_border_float4) LANEMATH_NAMED("expf4_rm");
lanemath_wide_float8 exp(lanemath_wide_float8) LANEMATH_NAMED_WIDE("expf8_rm");
lanemath_wide_float16 exp(lanemath_wide_float16) LANEMATH_NAMED_WIDE("expf16_rm");
float exp2(float) LANEMATH_NAMED("exp2f1_rm");
lanemath_border_float2 exp2(lanemath_border_float2) LANEMATH_NAMED("exp2f2_rm");
float3_border exp2(float3_border) LANEMATH_NAMED("exp2f3_rm");
lanemath_border_float4 exp2(lanemath_border_float4) LANEMATH_NAMED("exp2f4_rm");
lanemath_wide_float8 exp2(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp2f8_rm");
lanemath_wide_float16 exp2(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp2f16_rm");
float exp10(float) LANEMATH_NAMED("exp10f1_rm");
lanemath_border_float2 exp10(lanemath_border_float2) LANEMATH_NAMED("exp10f2_rm");
float3_border exp10(float3_border) LANEMATH_NAMED("exp10f3_rm");
lanemath_border_float4 exp10(lanemath_border_float4) LANEMATH_NAMED("exp10f4_rm");
lanemath_wide_float8 exp10(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp10f8_rm");
lanemath_wide_float16 exp10(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp10f16_rm");
float log(float) LANEMATH_NAMED("logf1_rm");
lanemath_border_float2 log(lanemath_border_float2) LANEMATH_NAMED("logf2_rm");
float3_border log(float3_border) LANEMATH_NAMED("logf3_rm");
lanemath_border_float4 log(lanemath_border_float4) LANEMATH_NAMED("logf4_rm");
lanemath_wide_float8 log(lanemath_wide_float8) LANEMATH_NAMED_WIDE("logf8_rm");
lanemath_wide_float16 log(lanemath_wide_float16) LANEMATH_NAMED_WIDE("logf16_rm");
float log2(float) LANEMATH_NAMED("log2f1_rm");
lanemath_border_float2 log2(lanemath_border_float2) LANEMATH_NAMED("log2f2_rm");
float3_border log2(float3_border) LANEMATH_NAMED("log2f3_rm");
lanemath_border_float4 log2(lanemath_border_float4) LANEMATH_NAMED("log2f4_rm");
lanemath_wide_float8 log2(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log2f8_rm");
lanemath_wide_float16 log2(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log2f16_rm");
float pow(float, float) LANEMATH_NAMED("powf1_rm");
lanemath_border_float2 pow(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("powf2_rm");
float3_border pow(float3_border, float3_border) LANEMATH_NAMED("powf3_rm");
lanemath_border_float4 pow(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("powf4_rm");
lanemath_wide_float8 pow(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("powf8_rm");
lanemath_wide_float16 pow(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("powf16_rm");
float sin(float) LANEMATH_NAMED("sinf1_rm");
lanemath_border_float2 sin(lanemath_border_float2) LANEMATH_NAMED("sinf2_rm");
float3_border sin(float3_border) LANEMATH_NAMED("sinf3_rm");
lanemath_border_float4 sin(lanemath_border_float4) LANEMATH_NAMED("sinf4_rm");
lanemath_wide_float8 sin(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinf8_rm");
lanemath_wide_float16 sin(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinf16_rm");
float cos(float) LANEMATH_NAMED("cosf1_rm");
lanemath_border_float2 cos(lanemath_border_float2) LANEMATH_NAMED("cosf2_rm");
float3_border cos(float3_border) LANEMATH_NAMED("cosf3_rm");
lanemath_border_float4 cos(lanemath_border_float4) LANEMATH_NAMED("cosf4_rm");
lanemath_wide_float8 cos(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cosf8_rm");
lanemath_wide_float16 cos(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cosf16_rm");
float sincos(float, void*) LANEMATH_NAMED("sincosf1_rm");
lanemath_border_float2 sincos(lanemath_border_float2, void*) LANEMATH_NAMED("sincosf2_rm");
float3_border sincos(float3_border, void*) LANEMATH_NAMED("sincosf3_rm");
lanemath_border_float4 sincos(lanemath_border_float4, void*) LANEMATH_NAMED("sincosf4_rm");
lanemath_wide_float8 sincos(lanemath_wide_float8, void*) LANEMATH_NAMED_WIDE("sincosf8_rm");
lanemath_wide_float16 sincos(lanemath_wide_float16, void*) LANEMATH_NAMED_WIDE("sincosf16_rm");
float tan(float) LANEMATH_NAMED("tanf1_rm");
lanemath_border_float2 tan(lanemath_border_float2) LANEMATH_NAMED("tanf2_rm");
float3_border tan(float3_border) LANEMATH_NAMED("tanf3_rm");
lanemath_border_float4 tan(lanemath_border_float4) LANEMATH_NAMED("tanf4_rm");
lanemath_wide_float8 tan(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanf8_rm");
lanemath_wide_float16 tan(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanf16_rm");
float div(float, float) LANEMATH_NAMED("divf1_rm");
lanemath_border_float2 div(lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("divf2_rm");
float3_border div(float3_border, float3_border) LANEMATH_NAMED("divf3_rm");
lanemath_border_float4 div(lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("divf4_rm");
lanemath_wide_float8 div(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("divf8_rm");
lanemath_wide_float16 div(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("divf16_rm");
float inv(float) LANEMATH_NAMED("invf1_rm");
lanemath_border_float2 inv(lanemath_border_float2) LANEMATH_NAMED("invf2_rm");
float3_border inv(float3_border) LANEMATH_NAMED("invf3_rm");
lanemath_border_float4 inv(lanemath_border_float4) LANEMATH_NAMED("invf4_rm");
lanemath_wide_float8 inv(lanemath_wide_float8) LANEMATH_NAMED_WIDE("invf8_rm");
lanemath_wide_float16 inv(lanemath_wide_float16) LANEMATH_NAMED_WIDE("invf16_rm");
float fma(float, float, float) LANEMATH_NAMED("fmaf1_rm");
lanemath_border_float2 fma(lanemath_border_float2, lanemath_border_float2, lanemath_border_float2) LANEMATH_NAMED("fmaf2_rm");
float3_border fma(float3_border, float3_border, float3_border) LANEMATH_NAMED("fmaf3_rm");
lanemath_border_float4 fma(lanemath_border_float4, lanemath_border_float4, lanemath_border_float4) LANEMATH_NAMED("fmaf4_rm");
lanemath_wide_float8 fma(lanemath_wide_float8, lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("fmaf8_rm");
lanemath_wide_float16 fma(lanemath_wide_float16, lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("fmaf16_rm");
}  // namespace rm

template <>
struct conversion<std::int32_t, rounding::rte, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_int_rte_sat(x)) {
    return standard::to_int_rte_sat(x);
  }
};
template <>
struct conversion<std::int32_t, rounding::rte, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_int_rte(x)) {
    return standard::to_int_rte(x);
  }
};
template <>
struct conversion<std::int32_t, rounding::rtn, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_int_rtn_sat(x)) {
    return standard::to_int_rtn_sat(x);
  }
};
template <>
struct conversion<std::int32_t, rounding::rtn, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_int_rtn(x)) {
    return standard::to_int_rtn(x);
  }
};
template <>
struct conversion<std::int32_t, rounding::rtp, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_int_rtp_sat(x)) {
    return standard::to_int_rtp_sat(x);
  }
};
template <>
struct conversion<std::int32_t, rounding::rtp, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_int_rtp(x)) {
    return standard::to_int_rtp(x);
  }
};
template <>
struct conversion<std::int32_t, rounding::rtz, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_int_rtz_sat(x)) {
    return standard::to_int_rtz_sat(x);
  }
};
template <>
struct conversion<std::int32_t, rounding::rtz, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_int_rtz(x)) {
    return standard::to_int_rtz(x);
  }
};
template <>
struct conversion<std::uint32_t, rounding::rte, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_uint_rte_sat(x)) {
    return standard::to_uint_rte_sat(x);
  }
};
template <>
struct conversion<std::uint32_t, rounding::rte, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_uint_rte(x)) {
    return standard::to_uint_rte(x);
  }
};
template <>
struct conversion<std::uint32_t, rounding::rtn, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_uint_rtn_sat(x)) {
    return standard::to_uint_rtn_sat(x);
  }
};
template <>
struct conversion<std::uint32_t, rounding::rtn, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_uint_rtn(x)) {
    return standard::to_uint_rtn(x);
  }
};
template <>
struct conversion<std::uint32_t, rounding::rtp, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_uint_rtp_sat(x)) {
    return standard::to_uint_rtp_sat(x);
  }
};
template <>
struct conversion<std::uint32_t, rounding::rtp, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_uint_rtp(x)) {
    return standard::to_uint_rtp(x);
  }
};
template <>
struct conversion<std::uint32_t, rounding::rtz, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_uint_rtz_sat(x)) {
    return standard::to_uint_rtz_sat(x);
  }
};
template <>
struct conversion<std::uint32_t, rounding::rtz, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_uint_rtz(x)) {
    return standard::to_uint_rtz(x);
  }
};
template <>
struct conversion<std::int64_t, rounding::rte, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_long_rte_sat(x)) {
    return standard::to_long_rte_sat(x);
  }
};
template <>
struct conversion<std::int64_t, rounding::rte, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_long_rte(x)) {
    return standard::to_long_rte(x);
  }
};
template <>
struct conversion<std::int64_t, rounding::rtn, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_long_rtn_sat(x)) {
    return standard::to_long_rtn_sat(x);
  }
};
template <>
struct conversion<std::int64_t, rounding::rtn, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_long_rtn(x)) {
    return standard::to_long_rtn(x);
  }
};
template <>
struct conversion<std::int64_t, rounding::rtp, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_long_rtp_sat(x)) {
    return standard::to_long_rtp_sat(x);
  }
};
template <>
struct conversion<std::int64_t, rounding::rtp, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_long_rtp(x)) {
    return standard::to_long_rtp(x);
  }
};
template <>
struct conversion<std::int64_t, rounding::rtz, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_long_rtz_sat(x)) {
    return standard::to_long_rtz_sat(x);
  }
};
template <>
struct conversion<std::int64_t, rounding::rtz, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_long_rtz(x)) {
    return standard::to_long_rtz(x);
  }
};
template <>
struct conversion<std::uint64_t, rounding::rte, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_ulong_rte_sat(x)) {
    return standard::to_ulong_rte_sat(x);
  }
};
template <>
struct conversion<std::uint64_t, rounding::rte, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_ulong_rte(x)) {
    return standard::to_ulong_rte(x);
  }
};
template <>
struct conversion<std::uint64_t, rounding::rtn, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_ulong_rtn_sat(x)) {
    return standard::to_ulong_rtn_sat(x);
  }
};
template <>
struct conversion<std::uint64_t, rounding::rtn, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_ulong_rtn(x)) {
    return standard::to_ulong_rtn(x);
  }
};
template <>
struct conversion<std::uint64_t, rounding::rtp, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_ulong_rtp_sat(x)) {
    return standard::to_ulong_rtp_sat(x);
  }
};
template <>
struct conversion<std::uint64_t, rounding::rtp, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_ulong_rtp(x)) {
    return standard::to_ulong_rtp(x);
  }
};
template <>
struct conversion<std::uint64_t, rounding::rtz, true> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_ulong_rtz_sat(x)) {
    return standard::to_ulong_rtz_sat(x);
  }
};
template <>
struct conversion<std::uint64_t, rounding::rtz, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_ulong_rtz(x)) {
    return standard::to_ulong_rtz(x);
  }
};
template <>
struct conversion<double, rounding::rte, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_double_rte(x)) {
    return standard::to_double_rte(x);
  }
};
template <>
struct conversion<float, rounding::rte, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_float_rte(x)) {
    return standard::to_float_rte(x);
  }
};
template <>
struct conversion<double, rounding::rtn, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_double_rtn(x)) {
    return standard::to_double_rtn(x);
  }
};
template <>
struct conversion<float, rounding::rtn, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_float_rtn(x)) {
    return standard::to_float_rtn(x);
  }
};
template <>
struct conversion<double, rounding::rtp, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_double_rtp(x)) {
    return standard::to_double_rtp(x);
  }
};
template <>
struct conversion<float, rounding::rtp, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_float_rtp(x)) {
    return standard::to_float_rtp(x);
  }
};
template <>
struct conversion<double, rounding::rtz, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_double_rtz(x)) {
    return standard::to_double_rtz(x);
  }
};
template <>
struct conversion<float, rounding::rtz, false> {
  template <class B>
  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::to_float_rtz(x)) {
    return standard::to_float_rtz(x);
  }
};

}  // namespace detail

/** e to the power x. Largest error in ulp: 3.18 for double, 2.98 for double at width 2, 0.569 for float. Domain and
 * special values: at the head of <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> exp(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::exp(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** e to the power x. Largest error in ulp: 2.98e+07 for double, 2170 for float. Domain and special values: at the
 * head of <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> exp(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::exp(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

namespace half {
/** e to the power x. Largest error in ulp: 2170 for float. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> exp(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::exp(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace half

namespace rm {
/** e to the power x. Largest error in ulp: 2.94 for float. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> exp(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::rm::exp(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace rm

/** 2 to the power x. Largest error in ulp: 1.65 for double, 2.62 for double at width 2, 0.507 for float at width 1,
 * 1.11 for float, 2.56 for float at width 4. Domain and special values: at the head of <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> exp2(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::exp2(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** 2 to the power x. Largest error in ulp: 1.53e+07 for double, 1240 for float. Domain and special values: at the
 * head of <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> exp2(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::exp2(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

namespace half {
/** 2 to the power x. Largest error in ulp: 1240 for float. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> exp2(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::exp2(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace half

namespace rm {
/** 2 to the power x. Largest error in ulp: 1.11 for float. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> exp2(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::rm::exp2(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace rm

/** 10 to the power x. Largest error in ulp: 1.01 for double, 0.557 for float. Domain and special values: at the head
 * of <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> exp10(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::exp10(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** 10 to the power x. Largest error in ulp: 1.53e+07 for double, 1310 for float. Domain and special values: at the
 * head of <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> exp10(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::exp10(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

namespace half {
/** 10 to the power x. Largest error in ulp: 1310 for float. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> exp10(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::exp10(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace half

namespace rm {
/** 10 to the power x. Largest error in ulp: 1310 for float. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> exp10(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::rm::exp10(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace rm

/** e to the power x, minus one. Largest error in ulp: 2.97 for double, 1.81 for float. Domain and special values: at
 * the head of <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> expm1(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::expm1(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** e to the power x, minus one. Largest error in ulp: 5.19e+06 for double, 284 for float. Domain and special values:
 * at the head of <lanemath/exponential.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> expm1(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::expm1(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** natural logarithm of x. Largest error in ulp: 1.6 for double, 1.54 for float. Domain and special values: at the
 * head of <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::log(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** natural logarithm of x. Largest error in ulp: 5.5e+06 for double, 1570 for float. Domain and special values: at
 * the head of <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::log(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

namespace half {
/** natural logarithm of x. Largest error in ulp: 3.97 for float. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::log(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace half

namespace rm {
/** natural logarithm of x. Largest error in ulp: 1.54 for float. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::rm::log(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace rm

/** base-2 logarithm of x. Largest error in ulp: 2.1 for double, 2.08 for double at width 2, 2.62 for float. Domain
 * and special values: at the head of <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log2(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::log2(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** base-2 logarithm of x. Largest error in ulp: 6.4e+06 for double, 894 for float. Domain and special values: at the
 * head of <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log2(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::log2(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

namespace half {
/** base-2 logarithm of x. Largest error in ulp: 894 for float. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log2(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::log2(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace half

namespace rm {
/** base-2 logarithm of x. Largest error in ulp: 2.62 for float. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log2(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::rm::log2(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace rm

/** base-10 logarithm of x. Largest error in ulp: 2.1 for double, 0.8 for float. Domain and special values: at the
 * head of <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log10(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::log10(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** base-10 logarithm of x. Largest error in ulp: 7.7e+06 for double, 996 for float. Domain and special values: at the
 * head of <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log10(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::log10(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

namespace half {
/** base-10 logarithm of x. Largest error in ulp: 996 for float. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log10(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::log10(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace half

/** natural logarithm of 1 + x. Largest error in ulp: 0.8 for double, 1.01 for float. Domain and special values: at
 * the head of <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log1p(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::log1p(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** natural logarithm of 1 + x. Largest error in ulp: 5.5e+06 for double, 1570 for float. Domain and special values:
 * at the head of <lanemath/logarithm.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> log1p(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::log1p(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** x to the power y. Largest error in ulp: 1.64 for double, 1.1 for float. Domain and special values: at the head of
 * <lanemath/power.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> pow(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::pow(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

namespace native {
/** x to the power y. Largest error in ulp: 5.7e+09 for double, 4400 for float. Domain and special values: at the head
 * of <lanemath/power.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> pow(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::pow(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}
}  // namespace native

namespace rm {
/** x to the power y. Largest error in ulp: 4400 for float. Domain and special values: at the head of
 * <lanemath/power.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> pow(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::rm::pow(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}
}  // namespace rm

/** x to the power y, for x >= 0. Largest error in ulp: 1.64 for double, 8.05 for float. Domain and special values: at
 * the head of <lanemath/power.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> powr(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::powr(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

namespace native {
/** x to the power y, for x >= 0. Largest error in ulp: 5.7e+09 for double, 4400 for float. Domain and special values:
 * at the head of <lanemath/power.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> powr(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::powr(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}
}  // namespace native

namespace half {
/** x to the power y, for x >= 0. Largest error in ulp: 4400 for float. Domain and special values: at the head of
 * <lanemath/power.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> powr(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::powr(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}
}  // namespace half

/** x to the integer power y. Largest error in ulp: 1.62 for double, 8020 for float. Domain and special values: at the
 * head of <lanemath/power.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> pown(V x, const detail::with_lanes<V, std::int32_t>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::pown(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::with_lanes<V, std::int32_t>>::out(y)));
}

namespace native {
/** x to the integer power y. Largest error in ulp: 5.7e+09 for double, 4990 for float. Domain and special values: at
 * the head of <lanemath/power.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> pown(V x, const detail::with_lanes<V, std::int32_t>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::pown(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::with_lanes<V, std::int32_t>>::out(y)));
}
}  // namespace native

/** x to the power 1 / y, y an integer. Largest error in ulp: 1.04 for double, 5.72 for float. Domain and special
 * values: at the head of <lanemath/power.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> rootn(V x, const detail::with_lanes<V, std::int32_t>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::rootn(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::with_lanes<V, std::int32_t>>::out(y)));
}

namespace native {
/** x to the power 1 / y, y an integer. Largest error in ulp: 1.7e+08 for double, 1400 for float. Domain and special
 * values: at the head of <lanemath/power.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> rootn(V x, const detail::with_lanes<V, std::int32_t>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::rootn(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::with_lanes<V, std::int32_t>>::out(y)));
}
}  // namespace native

/** sine of x radians. Largest error in ulp: 3.77 for double, 2.59 for float. Domain and special values: at the head
 * of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> sin(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::sin(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** sine of x radians. Largest error in ulp: 6.15e+07 for double, 2530 for float. Domain and special values: at the
 * head of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> sin(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::sin(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

namespace half {
/** sine of x radians. Largest error in ulp: 2530 for float. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> sin(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::sin(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace half

namespace rm {
/** sine of x radians. Largest error in ulp: 2530 for float. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> sin(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::rm::sin(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace rm

/** cosine of x radians. Largest error in ulp: 3.65 for double, 2.52 for float. Domain and special values: at the head
 * of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> cos(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::cos(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** cosine of x radians. Largest error in ulp: 6.15e+07 for double, 2540 for float. Domain and special values: at the
 * head of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> cos(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::cos(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

namespace half {
/** cosine of x radians. Largest error in ulp: 2540 for float. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> cos(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::cos(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace half

namespace rm {
/** cosine of x radians. Largest error in ulp: 2540 for float. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> cos(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::rm::cos(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace rm

/** sine of x radians; cosine as .cosine. Largest error in ulp: 3.63 for double, 2.87 for float. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION sine_and_cosine<detail::vector_of<V>> sincos(V x) {
  typename detail::crossing<detail::vector_of<V>>::room second;
  const auto first = detail::standard::sincos(detail::crossing<detail::vector_of<V>>::out(x), &second);
  return {detail::crossing<detail::vector_of<V>>::in(first), detail::crossing<detail::vector_of<V>>::in(second)};
}

namespace native {
/** sine of x radians; cosine as .cosine. Largest error in ulp: 6.15e+07 for double, 2530 for float. Domain and
 * special values: at the head of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION sine_and_cosine<detail::vector_of<V>> sincos(V x) {
  typename detail::crossing<detail::vector_of<V>>::room second;
  const auto first = detail::native::sincos(detail::crossing<detail::vector_of<V>>::out(x), &second);
  return {detail::crossing<detail::vector_of<V>>::in(first), detail::crossing<detail::vector_of<V>>::in(second)};
}
}  // namespace native

namespace rm {
/** sine of x radians; cosine as .cosine. Largest error in ulp: 2530 for float. Domain and special values: at the head
 * of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION sine_and_cosine<detail::vector_of<V>> sincos(V x) {
  typename detail::crossing<detail::vector_of<V>>::room second;
  const auto first = detail::rm::sincos(detail::crossing<detail::vector_of<V>>::out(x), &second);
  return {detail::crossing<detail::vector_of<V>>::in(first), detail::crossing<detail::vector_of<V>>::in(second)};
}
}  // namespace rm

/** sine and cosine of x radians, as a pair. Largest error in ulp: 3.63 for double, 2.87 for float. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION sine_and_cosine<detail::vector_of<V>> sincosreg(V x) {
  const auto pair = detail::standard::sincosreg(detail::crossing<detail::vector_of<V>>::out(x));
  return {detail::crossing<detail::vector_of<V>>::in(pair.first), detail::crossing<detail::vector_of<V>>::in(pair.second)};
}

namespace native {
/** sine and cosine of x radians, as a pair. Largest error in ulp: 6.15e+07 for double, 2530 for float. Domain and
 * special values: at the head of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION sine_and_cosine<detail::vector_of<V>> sincosreg(V x) {
  const auto pair = detail::native::sincosreg(detail::crossing<detail::vector_of<V>>::out(x));
  return {detail::crossing<detail::vector_of<V>>::in(pair.first), detail::crossing<detail::vector_of<V>>::in(pair.second)};
}
}  // namespace native

/** tangent of x radians. Largest error in ulp: 0.571 for double, 3.95 for float. Domain and special values: at the
 * head of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> tan(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::tan(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** tangent of x radians. Largest error in ulp: 1.06e+07 for double, 924 for float. Domain and special values: at the
 * head of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> tan(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::tan(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

namespace half {
/** tangent of x radians. Largest error in ulp: 924 for float. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> tan(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::tan(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace half

namespace rm {
/** tangent of x radians. Largest error in ulp: 924 for float. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> tan(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::rm::tan(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace rm

/** sine of pi x. Largest error in ulp: 0.783 for double, 0.601 for float. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> sinpi(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::sinpi(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** sine of pi x. Largest error in ulp: 4.79e+07 for double, 1820 for float. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> sinpi(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::sinpi(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** cosine of pi x. Largest error in ulp: 0.633 for double, 0.601 for float. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> cospi(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::cospi(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** cosine of pi x. Largest error in ulp: 4.79e+07 for double, 1820 for float. Domain and special values: at the head
 * of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> cospi(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::cospi(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** tangent of pi x. Largest error in ulp: 0.783 for double, 0.539 for float. Domain and special values: at the head
 * of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> tanpi(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::tanpi(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** tangent of pi x. Largest error in ulp: 1.06e+07 for double, 742 for float. Domain and special values: at the head
 * of <lanemath/trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> tanpi(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::tanpi(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** arc sine of x, in radians. Largest error in ulp: 2.17 for double, 2.28 for float. Domain and special values: at
 * the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> asin(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::asin(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** arc sine of x, in radians. Largest error in ulp: 6.3e+06 for double, 536 for float. Domain and special values: at
 * the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> asin(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::asin(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** arc cosine of x, in radians. Largest error in ulp: 1.33 for double, 1.24 for float. Domain and special values: at
 * the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> acos(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::acos(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** arc cosine of x, in radians. Largest error in ulp: 6.4e+06 for double, 533 for float. Domain and special values:
 * at the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> acos(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::acos(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** arc sine of x, divided by pi. Largest error in ulp: 3.02 for double, 3.21 for float. Domain and special values: at
 * the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> asinpi(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::asinpi(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** arc sine of x, divided by pi. Largest error in ulp: 7.6e+06 for double, 682 for float. Domain and special values:
 * at the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> asinpi(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::asinpi(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** arc cosine of x, divided by pi. Largest error in ulp: 2.35 for double, 2.46 for float. Domain and special values:
 * at the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> acospi(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::acospi(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** arc cosine of x, divided by pi. Largest error in ulp: 6.1e+06 for double, 532 for float. Domain and special
 * values: at the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> acospi(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::acospi(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** arc tangent of x, in radians. Largest error in ulp: 2.63 for double, 4.63 for double at width 2, 2.82 for float,
 * 3.76 for float at width 4. Domain and special values: at the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> atan(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::atan(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** arc tangent of x, in radians. Largest error in ulp: 2.25e+07 for double, 3780 for float. Domain and special
 * values: at the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> atan(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::atan(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** arc tangent of x, divided by pi. Largest error in ulp: 3.27 for double, 4.8 for float. Domain and special values:
 * at the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> atanpi(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::atanpi(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** arc tangent of x, divided by pi. Largest error in ulp: 2.25e+07 for double, 3780 for float. Domain and special
 * values: at the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> atanpi(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::atanpi(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** angle of the point (second, first) in radians, -pi to pi. Largest error in ulp: 4.72 for double, 4.72 for double
 * at width 2, 3.85 for float, 3.99 for float at width 4. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> atan2(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::atan2(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

namespace native {
/** angle of the point (second, first) in radians, -pi to pi. Largest error in ulp: 2.25e+07 for double, 3780 for
 * float. Domain and special values: at the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> atan2(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::atan2(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}
}  // namespace native

/** angle of the point (second, first) divided by pi, -1 to 1. Largest error in ulp: 4.55 for double, 6.3 for float.
 * Domain and special values: at the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> atan2pi(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::atan2pi(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

namespace native {
/** angle of the point (second, first) divided by pi, -1 to 1. Largest error in ulp: 2.25e+07 for double, 3780 for
 * float. Domain and special values: at the head of <lanemath/inverse_trigonometric.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> atan2pi(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::atan2pi(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}
}  // namespace native

/** hyperbolic sine of x. Largest error in ulp: 2.12 for double, 2.03 for float. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> sinh(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::sinh(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** hyperbolic sine of x. Largest error in ulp: 2.12 for double, 1080 for float. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> sinh(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::sinh(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** hyperbolic cosine of x. Largest error in ulp: 1.54 for double, 1.85 for float. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> cosh(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::cosh(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** hyperbolic cosine of x. Largest error in ulp: 1.54 for double, 381 for float. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> cosh(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::cosh(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** hyperbolic tangent of x. Largest error in ulp: 1.25 for double, 1.03 for float. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> tanh(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::tanh(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** hyperbolic tangent of x. Largest error in ulp: 1.25 for double, 1.03 for float. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> tanh(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::tanh(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** inverse hyperbolic sine of x. Largest error in ulp: 1.8 for double, 2.28 for double at width 2, 2.3 for float,
 * 2.28 for float at width 4. Domain and special values: at the head of <lanemath/hyperbolic.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> asinh(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::asinh(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** inverse hyperbolic sine of x. Largest error in ulp: 700000 for double, 2.28 for double at width 2, 1470 for float,
 * 2.28 for float at width 4. Domain and special values: at the head of <lanemath/hyperbolic.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> asinh(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::asinh(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** inverse hyperbolic cosine of x. Largest error in ulp: 9 for double, 2.19 for double at width 2, 3.4 for float,
 * 2.14 for float at width 4. Domain and special values: at the head of <lanemath/hyperbolic.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> acosh(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::acosh(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** inverse hyperbolic cosine of x. Largest error in ulp: 700000 for double, 2.19 for double at width 2, 2500 for
 * float, 2.14 for float at width 4. Domain and special values: at the head of <lanemath/hyperbolic.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> acosh(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::acosh(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** inverse hyperbolic tangent of x. Largest error in ulp: 2.4 for double, 2.2 for float. Domain and special values:
 * at the head of <lanemath/hyperbolic.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> atanh(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::atanh(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** inverse hyperbolic tangent of x. Largest error in ulp: 700000 for double, 1470 for float. Domain and special
 * values: at the head of <lanemath/hyperbolic.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> atanh(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::atanh(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** x / y. Largest error in ulp: 0.5 for double, 0.5 for float. Domain and special values: at the head of
 * <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> div(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::div(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

namespace native {
/** x / y. Largest error in ulp: 0.5 for double, 6150 for float. Domain and special values: at the head of
 * <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> div(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::div(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}
}  // namespace native

namespace half {
/** x / y. Largest error in ulp: 6150 for float. Domain and special values: at the head of <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> div(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::div(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}
}  // namespace half

namespace rm {
/** x / y. Largest error in ulp: 6150 for float. Domain and special values: at the head of <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> div(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::rm::div(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}
}  // namespace rm

/** 1 / x. Largest error in ulp: 0.5 for double, 0.5 for float. Domain and special values: at the head of
 * <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> inv(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::inv(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** 1 / x. Largest error in ulp: 447000 for double, 6150 for float. Domain and special values: at the head of
 * <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> inv(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::inv(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

namespace half {
/** 1 / x. Largest error in ulp: 6150 for float. Domain and special values: at the head of <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> inv(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::inv(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace half

namespace rm {
/** 1 / x. Largest error in ulp: 6150 for float. Domain and special values: at the head of <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> inv(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::rm::inv(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace rm

/** square root of x. Largest error in ulp: 0.5 for double, 0.5 for float. Domain and special values: at the head of
 * <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> sqrt(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::sqrt(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** square root of x. Largest error in ulp: 3.31e+12 for double, 6150 for float. Domain and special values: at the
 * head of <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> sqrt(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::sqrt(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

namespace half {
/** square root of x. Largest error in ulp: 6150 for float. Domain and special values: at the head of
 * <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> sqrt(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::sqrt(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace half

/** 1 / square root of x. Largest error in ulp: 1 for double, 1 for float. Domain and special values: at the head of
 * <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> rsqrt(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::rsqrt(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** 1 / square root of x. Largest error in ulp: 1.2e+06 for double, 5.2 for float. Domain and special values: at the
 * head of <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> rsqrt(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::rsqrt(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

namespace half {
/** 1 / square root of x. Largest error in ulp: 5.2 for float. Domain and special values: at the head of
 * <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> rsqrt(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::half::rsqrt(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace half

/** cube root of x. Largest error in ulp: 1.13 for double, 0.514 for float. Domain and special values: at the head of
 * <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> cbrt(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::cbrt(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** cube root of x. Largest error in ulp: 2270 for double, 356 for float. Domain and special values: at the head of
 * <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> cbrt(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::cbrt(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** 1 / cube root of x. Largest error in ulp: 1.02 for double, 0.515 for float. Domain and special values: at the head
 * of <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> rcbrt(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::rcbrt(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** 1 / cube root of x. Largest error in ulp: 13400 for double, 889 for float. Domain and special values: at the head
 * of <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> rcbrt(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::rcbrt(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** square root of x x + y y, without undue overflow. Largest error in ulp: 2.4 for double, 1.37 for float. Domain and
 * special values: at the head of <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> hypot(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::hypot(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

namespace native {
/** square root of x x + y y, without undue overflow. Largest error in ulp: 1.2e+06 for double, 6150 for float. Domain
 * and special values: at the head of <lanemath/root.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> hypot(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::hypot(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}
}  // namespace native

/** error function of x. Largest error in ulp: 2.55 for double, 1.93 for float. Domain and special values: at the head
 * of <lanemath/special.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> erf(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::erf(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** error function of x. Largest error in ulp: 315000 for double, 277 for float. Domain and special values: at the
 * head of <lanemath/special.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> erf(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::erf(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** complementary error function, 1 - erf(x). Largest error in ulp: 2.13 for double, 1.77 for float. Domain and
 * special values: at the head of <lanemath/special.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> erfc(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::erfc(detail::crossing<detail::vector_of<V>>::out(x)));
}

namespace native {
/** complementary error function, 1 - erf(x). Largest error in ulp: 6.78e+06 for double, 405 for float. Domain and
 * special values: at the head of <lanemath/special.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> erfc(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::native::erfc(detail::crossing<detail::vector_of<V>>::out(x)));
}
}  // namespace native

/** natural logarithm of |gamma(x)|. Largest error in ulp: 0.51 for double, 0.51 for float. Domain and special values:
 * at the head of <lanemath/special.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> lgamma(V x) {
  return detail::crossing_to_library<detail::vector_of<V>>::in(detail::standard::lgamma(detail::crossing_to_library<detail::vector_of<V>>::out(x)));
}

/** natural logarithm of |gamma(x)|; the sign of gamma(x) as .sign. Largest error in ulp: 0.51 for double, 0.51 for
 * float. Domain and special values: at the head of <lanemath/special.h>. */
template <class V>
LANEMATH_FUNCTION value_and_sign<detail::vector_of<V>, detail::with_lanes<V, std::int32_t>> lgammar(V x) {
  typename detail::crossing_to_library<detail::with_lanes<V, std::int32_t>>::room second;
  const auto first = detail::standard::lgammar(detail::crossing_to_library<detail::vector_of<V>>::out(x), &second);
  return {detail::crossing_to_library<detail::vector_of<V>>::in(first), detail::crossing_to_library<detail::with_lanes<V, std::int32_t>>::in(second)};
}

/** gamma function of x. Largest error in ulp: 0.505 for double, 0.503 for float. Domain and special values: at the
 * head of <lanemath/special.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> tgamma(V x) {
  return detail::crossing_to_library<detail::vector_of<V>>::in(detail::standard::tgamma(detail::crossing_to_library<detail::vector_of<V>>::out(x)));
}

/** x rounded up to an integer. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> ceil(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::ceil(detail::crossing<detail::vector_of<V>>::out(x)));
}

/** x rounded down to an integer. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> floor(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::floor(detail::crossing<detail::vector_of<V>>::out(x)));
}

/** x rounded toward zero to an integer. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> trunc(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::trunc(detail::crossing<detail::vector_of<V>>::out(x)));
}

/** x rounded to an integer in the current direction. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> rint(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::rint(detail::crossing<detail::vector_of<V>>::out(x)));
}

/** as rint, without the inexact flag. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> nearbyint(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::nearbyint(detail::crossing<detail::vector_of<V>>::out(x)));
}

/** x rounded to the nearest integer, halves away from zero. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> round(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::round(detail::crossing<detail::vector_of<V>>::out(x)));
}

/** x with the sign cleared. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> fabs(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::fabs(detail::crossing<detail::vector_of<V>>::out(x)));
}

/** x with the sign of y. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> copysign(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::copysign(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** x - y if x > y, else +0. Largest error in ulp: 0.5 for double, 0.5 for float. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> fdim(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::fdim(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** the larger of x and y, a number before a NaN. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> fmax(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::fmax(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** the smaller of x and y, a number before a NaN. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> fmin(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::fmin(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** the one of x and y with the larger magnitude. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> maxmag(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::maxmag(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** the one of x and y with the smaller magnitude. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> minmag(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::minmag(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** x - floor(x), below 1; floor(x) as .floor. Largest error in ulp: 1 for double, 1 for float. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION fraction_and_floor<detail::vector_of<V>> fract(V x) {
  typename detail::crossing<detail::vector_of<V>>::room second;
  const auto first = detail::standard::fract(detail::crossing<detail::vector_of<V>>::out(x), &second);
  return {detail::crossing<detail::vector_of<V>>::in(first), detail::crossing<detail::vector_of<V>>::in(second)};
}

/** fraction of x; integral part as .integer. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION fraction_and_integer<detail::vector_of<V>> modf(V x) {
  typename detail::crossing<detail::vector_of<V>>::room second;
  const auto first = detail::standard::modf(detail::crossing<detail::vector_of<V>>::out(x), &second);
  return {detail::crossing<detail::vector_of<V>>::in(first), detail::crossing<detail::vector_of<V>>::in(second)};
}

/** significand of x in [0.5, 1); exponent as .exponent. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION fraction_and_exponent<detail::vector_of<V>, detail::with_lanes<V, std::int32_t>> frexp(V x) {
  typename detail::crossing<detail::with_lanes<V, std::int32_t>>::room second;
  const auto first = detail::standard::frexp(detail::crossing<detail::vector_of<V>>::out(x), &second);
  return {detail::crossing<detail::vector_of<V>>::in(first), detail::crossing<detail::with_lanes<V, std::int32_t>>::in(second)};
}

/** x times 2 to the power y. Largest error in ulp: 0.5 for double, 0.5 for float. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> ldexp(V x, const detail::with_lanes<V, std::int32_t>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::ldexp(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::with_lanes<V, std::int32_t>>::out(y)));
}

/** exponent of x as an integer. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::with_lanes<V, std::int32_t> ilogb(V x) {
  return detail::crossing<detail::with_lanes<V, std::int32_t>>::in(detail::standard::ilogb(detail::crossing<detail::vector_of<V>>::out(x)));
}

/** exponent of x as a floating value. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> logb(V x) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::logb(detail::crossing<detail::vector_of<V>>::out(x)));
}

/** a quiet NaN with the payload x. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::floating<V> nan(V x) {
  return detail::crossing<detail::floating<V>>::in(detail::standard::nan(detail::crossing<detail::vector_of<V>>::out(x)));
}

/** the value next to x in the direction of y. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> nextafter(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::nextafter(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** remainder of x / y, quotient truncated. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> fmod(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::fmod(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** remainder of x / y, quotient to nearest even. Domain and special values: at the head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> remainder(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::remainder(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** remainder of x / y; low bits of the quotient as .quotient. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION remainder_and_quotient<detail::vector_of<V>, detail::with_lanes<V, std::int32_t>> remquo(V x, const detail::vector_of<V>& y) {
  typename detail::crossing<detail::with_lanes<V, std::int32_t>>::room second;
  const auto first = detail::standard::remquo(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y), &second);
  return {detail::crossing<detail::vector_of<V>>::in(first), detail::crossing<detail::with_lanes<V, std::int32_t>>::in(second)};
}

/** x y + z with one rounding. Largest error in ulp: 0.5 for double, 0.5 for float. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> fma(V x, const detail::vector_of<V>& y, const detail::vector_of<V>& z) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::fma(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y), detail::crossing<detail::vector_of<V>>::out(z)));
}

namespace rm {
/** x y + z with one rounding. Largest error in ulp: 0.5 for float. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> fma(V x, const detail::vector_of<V>& y, const detail::vector_of<V>& z) {
  return detail::crossing<detail::vector_of<V>>::in(detail::rm::fma(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y), detail::crossing<detail::vector_of<V>>::out(z)));
}
}  // namespace rm

/** quotient of x / y, truncated. Domain and special values: at the head of <lanemath/integer_division.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> idiv(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::idiv(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** remainder of x / y, with the sign of x. Domain and special values: at the head of <lanemath/integer_division.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> irem(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::irem(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** quotient and remainder of x / y. Domain and special values: at the head of <lanemath/integer_division.h>. */
template <class V>
LANEMATH_FUNCTION quotient_and_remainder<detail::vector_of<V>> idivrem(V x, const detail::vector_of<V>& y) {
  const auto pair = detail::standard::idivrem(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y));
  return {detail::crossing<detail::vector_of<V>>::in(pair.first), detail::crossing<detail::vector_of<V>>::in(pair.second)};
}

/** quotient of x / y. Domain and special values: at the head of <lanemath/integer_division.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> udiv(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::udiv(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** remainder of x / y. Domain and special values: at the head of <lanemath/integer_division.h>. */
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> urem(V x, const detail::vector_of<V>& y) {
  return detail::crossing<detail::vector_of<V>>::in(detail::standard::urem(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y)));
}

/** quotient and remainder of x / y. Domain and special values: at the head of <lanemath/integer_division.h>. */
template <class V>
LANEMATH_FUNCTION quotient_and_remainder<detail::vector_of<V>> udivrem(V x, const detail::vector_of<V>& y) {
  const auto pair = detail::standard::udivrem(detail::crossing<detail::vector_of<V>>::out(x), detail::crossing<detail::vector_of<V>>::out(y));
  return {detail::crossing<detail::vector_of<V>>::in(pair.first), detail::crossing<detail::vector_of<V>>::in(pair.second)};
}

}  // namespace lanemath

#endif
