#include "calls.hpp"

#include <algorithm>

namespace quorin_test {

Answer run(const Call& c, bool twin) {
  Answer answer;
  const auto size = static_cast<std::size_t>(std::max(c.n, 1));
  std::vector<quorin_double_complex> cy(size, {kUntouched.real(), kUntouched.imag()});
  std::vector<quorin_double_complex> work(size);
  const quorin_double_complex z{c.z.real(), c.z.imag()};
  const auto sequence = [&](auto plain, auto index_form) {
    (twin ? index_form : plain)(&z, &c.nu, &c.kode, &c.n, cy.data(), &answer.nz, &answer.ierr);
  };
  switch (c.function) {
    case 'H':
      (twin ? sCBESH_Idx : CBESH)(&z, &c.nu, &c.kode, &c.kind, &c.n, cy.data(), &answer.nz, &answer.ierr);
      break;
    case 'I':
      sequence(CBESI, sCBESI_Idx);
      break;
    case 'J':
      sequence(CBESJ, sCBESJ_Idx);
      break;
    case 'K':
      sequence(CBESK, sCBESK_Idx);
      break;
    case 'Y':
      (twin ? sCBESY_Idx : CBESY)(&z, &c.nu, &c.kode, &c.n, cy.data(), &answer.nz, work.data(), &answer.ierr);
      break;
    case 'A':
      (twin ? sCAIRY_Idx : CAIRY)(&z, &c.kind, &c.kode, cy.data(), &answer.nz, &answer.ierr);
      break;
    default:
      (twin ? sCBIRY_Idx : CBIRY)(&z, &c.kind, &c.kode, cy.data(), &answer.ierr);
      answer.nz = 0;
  }
  for (const quorin_double_complex& v : cy) answer.cy.emplace_back(v.re, v.im);
  return answer;
}

}  // namespace quorin_test
