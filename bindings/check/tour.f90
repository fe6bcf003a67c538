! The tour of the bindings in Fortran: each step prints a line, the first wrong one ends with status 1.
module tour_steps
  use quorin_lapacks
  use, intrinsic :: iso_c_binding
  implicit none
  integer :: steps = 0

contains

  ! QUORIN_FALSIFIED is the number of a step whose wanted value is falsified, for a proof that each can fail.
  subroutine expect(step, value, right, tolerance)
    character(*), intent(in) :: step
    real(c_double), intent(in) :: value, right, tolerance
    real(c_double) :: wanted
    character(8) :: falsified, number
    steps = steps + 1
    wanted = right
    call get_environment_variable('QUORIN_FALSIFIED', falsified)
    write (number, '(i0)') steps
    if (number == falsified) wanted = right + 1 + 2 * tolerance
    if (.not. abs(value - wanted) <= tolerance) then
      print '(2a,g0,a,g0)', step, ': ', value, ' instead of ', wanted
      stop 1
    end if
    print '(2a,g0)', step, ': ', value
  end subroutine

  subroutine dot_product_inside_an_array
    real(c_float) :: data(7) = [0, 1, 2, 3, 4, 5, 6]
    call expect('sdot_Idx', real(sdot_idx(3, data, 1, 1, data, 4, 1), c_double), 32d0, 0d0)
  end subroutine

  subroutine singular_values
    real(c_float) :: a(3, 2), s(2), vectors(1), size(1)
    real(c_float), allocatable :: work(:)
    integer(c_int32_t) :: info
    a = reshape([1., 3., 5., 2., 4., 6.], [3, 2])
    call sgesvd('N', 'N', 3, 2, a, 3, s, vectors, 1, vectors, 1, size, -1, info)
    allocate (work(int(size(1))))
    call sgesvd('N', 'N', 3, 2, a, 3, s, vectors, 1, vectors, 1, work, int(size(1)), info)
    call expect('sgesvd, info', real(info, c_double), 0d0, 0d0)
    call expect('sgesvd, s(1)', real(s(1), c_double), 9.5255181d0, 1d-5)
    call expect('sgesvd, s(2)', real(s(2), c_double), 0.5143006d0, 1d-5)
  end subroutine

  subroutine sparse_lu
    integer(c_int32_t) :: starts(6) = [0, 2, 5, 9, 10, 12], rows(12) = [0, 1, 0, 2, 4, 1, 2, 3, 4, 2, 1, 4], status, i
    real(c_float) :: values(12) = [2, 3, 3, -1, 4, 4, -3, 1, 2, 2, 6, 1], b(5) = [8, 45, -3, 3, 19], x(5)
    real(c_float) :: control(20), info(90)
    type(c_ptr) :: symbolic, numeric
    call umfpack_di_defaults(control)
    status = umfpack_di_symbolic(5, 5, starts, rows, values, symbolic, control, info)
    status = umfpack_di_numeric(starts, rows, values, symbolic, numeric, control, info)
    status = umfpack_di_solve(umfpack_a, starts, rows, values, x, b, numeric, control, info)
    call umfpack_di_free_symbolic(symbolic)
    call umfpack_di_free_numeric(numeric)
    do i = 1, 5
      call expect('umfpack_di_solve', real(x(i), c_double), real(i, c_double), 1d-5)
    end do
  end subroutine

  subroutine conjugate_gradients
    integer(c_int32_t), parameter :: n = 10
    real(c_double) :: x(n), b(n), tmp(n, 4), dpar(128)
    integer(c_int32_t) :: ipar(128), request, i
    ! -1 2 -1, with 1, 1, ... for a solution.
    x = 0
    b = 0
    b(1) = 1
    b(n) = 1
    call dcg_init(n, x, b, request, ipar, dpar, tmp)
    ipar(quorin_rci_ipar_residual_test) = 1
    ipar(quorin_rci_ipar_host_test) = 0
    dpar(quorin_rci_dpar_relative_tolerance) = 1d-10
    do
      call dcg(n, x, b, request, ipar, dpar, tmp)
      if (request /= quorin_rci_multiply) exit
      tmp(:, 2) = 2 * tmp(:, 1)
      tmp(2:, 2) = tmp(2:, 2) - tmp(:n - 1, 1)
      tmp(:n - 1, 2) = tmp(:n - 1, 2) - tmp(2:, 1)
    end do
    call expect('DCG, request', real(request, c_double), 0d0, 0d0)
    do i = 1, n
      call expect('DCG', x(i), 1d0, 1d-8)
    end do
  end subroutine

  ! The same system by the direct solver: its upper triangle by rows.
  subroutine direct_solution
    integer(c_int32_t), parameter :: n = 10
    integer(c_int32_t) :: starts(n + 1), columns(2 * n - 1), iparm(64), error, i
    real(c_double), target :: values(2 * n - 1), b(n), x(n)
    type(c_ptr) :: handle(64)
    starts = [(2 * i - 1, i = 1, n), 2 * n]
    columns(1::2) = [(i, i = 1, n)]
    columns(2::2) = [(i + 1, i = 1, n - 1)]
    values(1::2) = 2
    values(2::2) = -1
    b = 0
    b(1) = 1
    b(n) = 1
    call spardisoinit(handle, quorin_pardiso_real_positive_definite, iparm)
    call pardiso(handle, 1, 1, quorin_pardiso_real_positive_definite, quorin_pardiso_analyse_factorize_solve, n, &
      c_loc(values), starts, columns, nrhs=1, iparm=iparm, msglvl=quorin_pardiso_silent, b=c_loc(b), x=c_loc(x), error=error)
    call expect('PARDISO, error', real(error, c_double), 0d0, 0d0)
    do i = 1, n
      call expect('PARDISO', x(i), 1d0, 1d-12)
    end do
    call pardiso(handle, phase=quorin_pardiso_free_all, a=c_null_ptr, b=c_null_ptr, x=c_null_ptr, error=error)
    call expect('PARDISO, freed', real(error, c_double), 0d0, 0d0)
  end subroutine

  ! a exp(-b t) - y at t = 0, 1, ..., y being 3 exp(-t/2).
  subroutine decay(m, n, x, f) bind(c)
    integer(c_int32_t), intent(in) :: m, n
    real(c_float), intent(in) :: x(n)
    real(c_float), intent(out) :: f(m)
    integer :: t
    f = [(x(1) * exp(-x(2) * t) - 3 * exp(-0.5 * t), t = 0, m - 1)]
  end subroutine

  subroutine least_squares
    integer(c_int32_t), parameter :: m = 8, n = 2
    real(c_float), target :: x(n)
    real(c_float) :: f(m), jacobian(m, n), eps(6) = [1e-6, 1e-6, 1e-6, 1e-6, 1e-6, 0.], step(1) = [1e-3]
    integer(c_int32_t) :: status, request
    type(c_ptr) :: run
    x = 1
    status = strnlsp_init(run, n, m, x, eps, 100, 100, 0.)
    call decay(m, n, x, f)
    status = sjacobi(c_funloc(decay), n, m, jacobian, x, step)
    request = 0
    do while (request >= 0)
      status = strnlsp_solve(run, f, jacobian, request)
      if (request == quorin_trust_region_residual) call decay(m, n, x, f)
      if (request == quorin_trust_region_jacobian) status = sjacobi(c_funloc(decay), n, m, jacobian, x, step)
    end do
    status = strnlsp_delete(run)
    call expect('strnlsp, a', real(x(1), c_double), 3d0, 1d-3)
    call expect('strnlsp, b', real(x(2), c_double), 0.5d0, 1d-3)
  end subroutine
end module

program tour
  use tour_steps
  implicit none
  call dot_product_inside_an_array
  call singular_values
  call sparse_lu
  call conjugate_gradients
  call direct_solution
  call least_squares
  print '(a,i0,a)', 'the tour is right: ', steps, ' steps'
end program
