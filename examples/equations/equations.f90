! Three equations by LU factors, a sum of squares inside an array, and a report that a procedure of the host receives.
module host
  use, intrinsic :: iso_c_binding
  implicit none

contains

  ! The text output alone is stdcall. A text ends with a zero.
  subroutine print_text(text) bind(c)
    !GCC$ ATTRIBUTES STDCALL :: print_text
    type(c_ptr), value :: text
    character(c_char), pointer :: characters(:)
    integer :: i
    call c_f_pointer(text, characters, [1024])
    i = 1
    do while (characters(i) /= c_null_char)
      write (*, '(a)', advance='no') characters(i)
      i = i + 1
    end do
  end subroutine
end module

program equations
  use host
  use quorin_lapacks
  implicit none
  ! 2x + y + z = 7, 4x + 3y + 3z = 19, 8x + 7y + 9z = 49.
  real(c_float) :: a(3, 3) = reshape([2., 4., 8., 1., 3., 7., 1., 3., 9.], [3, 3]), x(3) = [7., 19., 49.]
  real(c_float) :: squares, control(umfpack_control)
  integer(c_int32_t) :: pivots(3), info, status

  call sgetrf(3, 3, a, 3, pivots, info)
  if (info > 0) error stop 'the matrix is singular'
  if (info < 0) error stop 'an argument is wrong'
  call sgetrs('N', 3, 1, a, 3, pivots, x, 3, info)

  ! y^2 + z^2: the index form counts from 0, and begins at element 1.
  squares = sdot_idx(2, x, 1, 1, x, 1, 1)
  print '(4(a, f0.4))', 'x = ', x(1), ', y = ', x(2), ', z = ', x(3), ', y^2 + z^2 = ', squares

  call umfpack_di_defaults(control)
  control(umfpack_prl + 1) = 4 ! all entries; the position counts from 0
  call set_printf_callback_32f(c_funloc(print_text))
  status = umfpack_di_report_vector(3, x, control)
  call set_printf_callback_32f(c_null_funptr)
  if (any(abs(x - [1., 2., 3.]) > 1e-5) .or. abs(squares - 13) > 1e-4) error stop 'that is wrong'
end program
