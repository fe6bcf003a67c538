/* Everything that Quorin.Lapacks.6.2.dll exports. Generated from the export tables. Do not edit. */
#ifndef QUORIN_QUORIN_H
#define QUORIN_QUORIN_H

#include "quorin/amos.h"
#include "quorin/blas.h"
#include "quorin/feast.h"
#include "quorin/jacobi.h"
#include "quorin/lapack.h"
#include "quorin/pack.h"
#include "quorin/pardiso.h"
#include "quorin/rci.h"
#include "quorin/services.h"
#include "quorin/signal.h"
#include "quorin/slap.h"
#include "quorin/taucs.h"
#include "quorin/trust_region.h"
#include "quorin/umfpack.h"

#endif
