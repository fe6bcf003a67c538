// Small systems whose solutions are known as fractions: published ones, and some made from them.
#pragma once

#include "tests/pardiso/pardiso_host.hpp"

namespace pardiso_test {

struct Solved {
  int operation;  // as iparm(12)
  std::vector<Complex> b, x;
};

struct System {
  std::string name;
  Matrix matrix;
  std::vector<Solved> cases;
  double condition = 1e2;          // about
  int positive = 0, negative = 0;  // eigenvalues, of kinds that have them

  int n() const { return matrix.n(); }
};

inline std::vector<Complex> ones(std::size_t n) { return std::vector<Complex>(n, 1.0); }
inline std::vector<Complex> counting(int n) {
  std::vector<Complex> b;
  for (int i = 1; i <= n; ++i) b.emplace_back(i);
  return b;
}

inline Matrix unsymmetric5() {
  return {
      11, {1, 4, 6, 9, 12, 14}, {1, 2, 4, 1, 2, 3, 4, 5, 1, 3, 4, 2, 5}, {1, -1, -3, -2, 5, 4, 6, 4, -4, 2, 7, 8, -5}};
}
// The same with the zeros that make its pattern symmetric.
inline Matrix structurally_symmetric5() {
  return {1,
          {1, 4, 7, 10, 13, 16},
          {1, 2, 4, 1, 2, 5, 3, 4, 5, 1, 3, 4, 2, 3, 5},
          {1, -1, -3, -2, 5, 0, 4, 6, 4, -4, 2, 7, 8, 0, -5}};
}
inline Matrix indefinite8() {
  return {-2,
          {1, 5, 8, 10, 12, 15, 17, 18, 19},
          {1, 3, 6, 7, 2, 3, 5, 3, 8, 4, 7, 5, 6, 7, 6, 8, 7, 8},
          {7, 1, 2, 7, -4, 8, 2, 1, 5, 7, 9, 5, 1, 5, -1, 5, 11, 5}};
}
inline Matrix definite8() {
  Matrix A = indefinite8();
  A.mtype = 2;
  A.a = {20, 1, 2, 7, 15, 8, 2, 20, 5, 15, 9, 15, 1, 5, 15, 5, 40, 15};
  return A;
}
inline Matrix definite5() {
  return {2, {1, 6, 7, 8, 9, 10}, {1, 2, 3, 4, 5, 2, 3, 4, 5}, {9, 1.5, 6, 0.75, 3, 0.5, 12, 0.625, 16}};
}
inline Matrix indefinite5() {
  return {-2, {1, 4, 5, 8, 9, 10}, {1, 2, 4, 2, 3, 4, 5, 4, 5}, {1, -1, -3, 5, 4, 6, 4, 7, -5}};
}
inline Matrix indefinite3() { return {-2, {1, 3, 5, 6}, {1, 3, 2, 3, 3}, {2, 3, 2, 1, 2}}; }
inline Matrix unsymmetric8() {
  return {11,
          {1, 5, 8, 10, 12, 13, 16, 18, 21},
          {1, 3, 6, 7, 2, 3, 5, 3, 8, 4, 7, 2, 3, 6, 8, 2, 7, 3, 7, 8},
          {7, 1, 2, 7, -4, 8, 2, 1, 5, 7, 9, -4, 7, 3, 5, 1, 11, -3, 2, 5}};
}
// With the entries (1,3), (1,6), (5,7) made complex.
inline Matrix complex8(Matrix A, int mtype) {
  A.mtype = mtype;
  A.a[1] = {1, 1};
  A.a[2] = {2, -1};
  A.a[13] = {5, 2};
  return A;
}
inline Matrix complex5() {
  Matrix A = unsymmetric5();
  A.mtype = 13;
  A.a[0] = {1, 1};
  return A;
}
inline Matrix with_type(Matrix A, int mtype) {
  A.mtype = mtype;
  return A;
}

inline std::vector<Complex> conjugated(std::vector<Complex> values) {
  for (Complex& value : values) value = std::conj(value);
  return values;
}

inline std::vector<System> systems() {
  const std::vector<Solved> five = {
      {0, ones(5), {-117.0 / 224, -1.0 / 112, 547.0 / 448, -113.0 / 224, -3.0 / 14}},
      {1, ones(5), {-0.220238095238095, -0.029761904761905, 0.395089285714286, -0.290178571428571, 0.116071428571429}},
      {2, ones(5), {-0.220238095238095, -0.029761904761905, 0.395089285714286, -0.290178571428571, 0.116071428571429}},
      {0,
       counting(5),
       {-0.813988095238095, 0.074404761904762, 2.575148809523809, -0.629464285714286, -0.880952380952381}}};
  const std::vector<Solved> indefinite = {
      {0,
       ones(8),
       {-0.041860201286809, -0.003413124159279, 0.117250376805018, -0.112639579923180, 0.024172244461371,
        -0.107633340356223, 0.198719673273585, 0.190382963551205}},
      {0,
       counting(8),
       {-0.258097661377891, -0.355997277279873, -0.119261624232209, 0.208203815049511, 0.765051942369091,
        0.474194123462392, 0.282508143850380, 1.245067500769817}}};
  const std::vector<Solved> definite = {
      {0,
       ones(8),
       {0.047522963964588, 0.050532465447616, 0.015387844415346, 0.070654003172325, 0.059455131481498,
        0.040335901096118, -0.006645560842763, 0.048092084829512}}};
  const std::vector<Complex> transposed = {{-0.202317406587684, -0.060213513865382},
                                           {-0.017575836479625, -0.040945189428460},
                                           {0.388369027470381, 0.022580067699518},
                                           {-0.276738054940763, -0.045160135399037},
                                           {0.110695221976305, 0.018064054159615}};
  const std::vector<Complex> hermitian = {
      {-0.030699838810529, 0.017209254098077}, {-0.007217392124025, -0.008031194718767},
      {0.117245702399618, 0.001729723275697},  {-0.099613836529368, 0.062114504224547},
      {0.016582406153479, -0.022981282540321}, {-0.108042506260624, -0.004651871588863},
      {0.188588539522841, -0.048311281063536}, {0.190796803861006, 0.002922148313166}};
  const std::vector<Complex> hermitian_definite = {
      {0.047903524179875, 0.000233890072477},  {0.050470423347906, -0.001638273024229},
      {0.015374103606647, 0.003018072300733},  {0.070752757508354, -0.002033060081392},
      {0.059975410464116, 0.000214758478788},  {0.040255620294477, -0.003266695672680},
      {-0.006810151402812, 0.003388433468987}, {0.048123425366292, 0.000082874457316}};
  const std::vector<Complex> symmetric = {
      {-0.037729889908335, 0.016011954431599}, {-0.001413555200406, 0.006571766887239},
      {0.122806049368079, 0.010921403095381},  {-0.110116374102760, 0.064640987460663},
      {0.005948692126874, -0.030542078607047}, {-0.111254896683099, -0.002565882552070},
      {0.196757179857702, -0.050276323580516}, {0.188448847315020, -0.008355520543311}};
  return {
      {"unsymmetric 5", unsymmetric5(), five},
      {"unsymmetric 5 as complex", with_type(unsymmetric5(), 13), five},
      {"structurally symmetric 5", structurally_symmetric5(), five},
      {"structurally symmetric 5 as complex", with_type(structurally_symmetric5(), 3), five},
      {"structurally symmetric 5 as unsymmetric", with_type(structurally_symmetric5(), 11), five},
      {"indefinite 8", indefinite8(), indefinite, 1e2, 5, 3},
      {"indefinite 8 as Hermitian", with_type(indefinite8(), -4), indefinite, 1e2, 5, 3},
      {"indefinite 8 as complex symmetric", with_type(indefinite8(), 6), indefinite},
      {"definite 5", definite5(), {{0, counting(5), {-979.0 / 3, 983, 1961.0 / 12, 398, 61.5}}}, 1e5},
      {"indefinite 5",
       indefinite5(),
       {{0, ones(5), {-9.0 / 74, 13.0 / 74, 271.0 / 444, -16.0 / 37, 32.0 / 111}}},
       1e2,
       3,
       2},
      {"indefinite 3", indefinite3(), {{0, ones(3), {0.0, 1.0 / 3, 1.0 / 3}}}, 1e2, 2, 1},
      {"unsymmetric 8",
       unsymmetric8(),
       {{0, ones(8), {3.0 / 56, -0.25, 5.0 / 88, -1.0 / 308, -5.0 / 22, -5.0 / 44, 5.0 / 44, 83.0 / 440}}}},
      {"definite 8", definite8(), definite},
      {"definite 8 as Hermitian", with_type(definite8(), 4), definite},
      {"definite 8 as indefinite", with_type(definite8(), -2), definite, 1e2, 8, 0},
      {"complex unsymmetric 5",
       complex5(),
       {{0,
         ones(5),
         {{-0.479820335893764, -0.142803671396954},
          {0.008071865642494, -0.057121468558781},
          {1.109629280041661, 0.374145619060018},
          {-0.448362843379768, -0.188500846243979},
          {-0.187085014972009, -0.091394349694050}}},
        {2, ones(5), transposed},
        {1, ones(5), conjugated(transposed)}}},
      {"Hermitian 8",
       complex8(indefinite8(), -4),
       {{0, ones(8), hermitian}, {1, ones(8), hermitian}, {2, ones(8), conjugated(hermitian)}},
       1e2,
       5,
       3},
      {"Hermitian definite 8",
       complex8(definite8(), 4),
       {{0, ones(8), hermitian_definite},
        {1, ones(8), hermitian_definite},
        {2, ones(8), conjugated(hermitian_definite)}}},
      {"complex symmetric 8",
       complex8(indefinite8(), 6),
       {{0, ones(8), symmetric}, {2, ones(8), symmetric}, {1, ones(8), conjugated(symmetric)}}},
  };
}

// 10 x 10, singular; the equations 8 to 10 are flagged. No diagonal entry of the others is stored.
inline Matrix schur10() {
  Matrix A{11,
           {0, 3, 6, 9, 12, 15, 18, 19, 20, 21, 22},
           {4, 7, 8, 0, 5, 7, 1, 6, 8, 0, 2, 7, 1, 2, 8, 2, 3, 4, 3, 5, 6, 4},
           {-1, 1, 1, 1, 1, 5.5, 1, 1, 4, 1, -1, -2, 1, -1, -4, 1, -1, -6, 1, 1, 1, 1}};
  for (auto* indices : {&A.ia, &A.ja}) {
    for (auto& index : *indices) ++index;
  }
  return A;
}

}  // namespace pardiso_test
