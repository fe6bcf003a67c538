#include "bench/bessel_peers.hpp"

#if defined(QUORIN_HAS_GSL)
#include <gsl/gsl_errno.h>
#include <gsl/gsl_sf_airy.h>
#include <gsl/gsl_sf_bessel.h>
#endif
#if defined(QUORIN_HAS_BOOST)
#include <boost/math/special_functions/airy.hpp>
#include <boost/math/special_functions/bessel.hpp>
#endif

namespace quorin::bench {

std::vector<BesselPeer> bessel_peers() {
  std::vector<BesselPeer> peers;
#if defined(QUORIN_HAS_GSL)
  gsl_set_error_handler_off();
  peers.push_back(
      {"gsl", gsl_sf_bessel_Jnu, gsl_sf_bessel_Ynu, [](double x) { return gsl_sf_airy_Ai(x, GSL_PREC_DOUBLE); }});
#endif
#if defined(QUORIN_HAS_BOOST)
  peers.push_back({"boost", [](double order, double x) { return boost::math::cyl_bessel_j(order, x); },
                   [](double order, double x) { return boost::math::cyl_neumann(order, x); },
                   [](double x) { return boost::math::airy_ai(x); }});
#endif
  return peers;
}

}  // namespace quorin::bench
