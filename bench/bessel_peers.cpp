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

namespace {

[[maybe_unused]] bool whole(double order) { return order == static_cast<int>(order); }

}  // namespace

std::vector<BesselPeer> bessel_peers() {
  std::vector<BesselPeer> peers;
#if defined(QUORIN_HAS_GSL)
  gsl_set_error_handler_off();
  // Whole orders have functions of their own.
  peers.push_back({"gsl",
                   [](double order, double x) {
                     return whole(order) ? gsl_sf_bessel_Jn(static_cast<int>(order), x) : gsl_sf_bessel_Jnu(order, x);
                   },
                   [](double order, double x) {
                     return whole(order) ? gsl_sf_bessel_Yn(static_cast<int>(order), x) : gsl_sf_bessel_Ynu(order, x);
                   },
                   [](double order, double x) {
                     return whole(order) ? gsl_sf_bessel_In(static_cast<int>(order), x) : gsl_sf_bessel_Inu(order, x);
                   },
                   [](double x) { return gsl_sf_airy_Ai(x, GSL_PREC_DOUBLE); }});
#endif
#if defined(QUORIN_HAS_BOOST)
  using namespace boost::math::policies;
  using Quiet = policy<overflow_error<ignore_error>, evaluation_error<ignore_error>>;
  peers.push_back({"boost",
                   [](double order, double x) {
                     return whole(order) ? boost::math::cyl_bessel_j(static_cast<int>(order), x, Quiet())
                                         : boost::math::cyl_bessel_j(order, x, Quiet());
                   },
                   [](double order, double x) {
                     return whole(order) ? boost::math::cyl_neumann(static_cast<int>(order), x, Quiet())
                                         : boost::math::cyl_neumann(order, x, Quiet());
                   },
                   [](double order, double x) {
                     return whole(order) ? boost::math::cyl_bessel_i(static_cast<int>(order), x, Quiet())
                                         : boost::math::cyl_bessel_i(order, x, Quiet());
                   },
                   [](double x) { return boost::math::airy_ai(x, Quiet()); }});
#endif
  return peers;
}

}  // namespace quorin::bench
