// Three equations by LU factors, a sum of squares inside an array, and a report that a function of the host receives.
package main

import (
	"fmt"
	"log"
	"math"
	"os"

	"quorin/lapacks"
)

func main() {
	if _, err := lapacks.Bind(); err != nil {
		log.Fatal(err) // the library is not there, or lacks an export
	}

	// 2x + y + z = 7, 4x + 3y + 3z = 19, 8x + 7y + 9z = 49; the matrix by columns.
	a, x := []float32{2, 4, 8, 1, 3, 7, 1, 3, 9}, []float32{7, 19, 49}
	pivots := make([]int32, 3)
	var info int32
	lapacks.Sgetrf(3, 3, a, 3, pivots, &info)
	if info != 0 {
		log.Fatalf("sgetrf: info = %d", info) // > 0: the matrix is singular
	}
	lapacks.Sgetrs('N', 3, 1, a, 3, pivots, x, 3, &info)

	// y^2 + z^2: the index form begins at element 1 of x.
	squares := lapacks.Sdot_Idx(2, x, 1, 1, x, 1, 1)
	fmt.Printf("x = %g, y = %g, z = %g, y^2 + z^2 = %g\n", x[0], x[1], x[2], squares)

	control := make([]float32, lapacks.UMFPACK_CONTROL)
	lapacks.Umfpack_di_defaults(control)
	control[lapacks.UMFPACK_PRL] = 4 // all entries
	lapacks.Set_printf_callback_32f(lapacks.TextOutput(func(text string) { fmt.Print(text) }))
	lapacks.Umfpack_di_report_vector(3, x, control)
	lapacks.Set_printf_callback_32f(0)
	wrong := math.Abs(float64(x[0]-1)) + math.Abs(float64(x[1]-2)) + math.Abs(float64(x[2]-3)) + math.Abs(float64(squares-13))
	if wrong > 1e-4 {
		os.Exit(1)
	}
}
