// Fixed kernels of derivatives, from pixels to a type that holds every result.
#include "filter/fixed.h"

using namespace qvp;
using namespace qvp::filter;

#define DERIVATIVES_OF_ALL(from, to, layout, types)                  \
  QVP_FIXED(SobelX, from, to, layout, types, SobelX3, SobelX5)       \
  QVP_FIXED(SobelY, from, to, layout, types, SobelY3, SobelY5)       \
  QVP_FIXED(SobelXX, from, to, layout, types, SobelXX3, SobelXX5)    \
  QVP_FIXED(SobelYY, from, to, layout, types, SobelYY3, SobelYY5)    \
  QVP_FIXED(SobelXY, from, to, layout, types, SobelXY3, SobelXY5)    \
  QVP_FIXED(ScharrX, from, to, layout, types, ScharrX3)              \
  QVP_FIXED(ScharrY, from, to, layout, types, ScharrY3)              \
  QVP_FIXED(PrewittX, from, to, layout, types, PrewittX3, PrewittX5) \
  QVP_FIXED(PrewittY, from, to, layout, types, PrewittY3, PrewittY5) \
  QVP_FIXED(Laplace, from, to, layout, types, Laplace3, Laplace5)    \
  QVP_FIXED(HighPass, from, to, layout, types, HighPass<3>, HighPass<5>)
#define DERIVATIVES(from, to, types)                         \
  DERIVATIVES_OF_ALL(from, to, C1, types)                    \
  DERIVATIVES_OF_ALL(from, to, C3, types)                    \
  QVP_FIXED(RobertsDown, from, to, C1, types, Roberts<true>) \
  QVP_FIXED(RobertsUp, from, to, C1, types, Roberts<false>)
DERIVATIVES(8u, 16s, 8u16s)
DERIVATIVES(16u, 32f, 16u32f)
DERIVATIVES(16s, 32f, 16s32f)
DERIVATIVES(32f, 32f, 32f)
