// The tour of the bindings in Go: each step prints a line, the first wrong one ends with status 1.
package main

import (
	"fmt"
	"math"
	"os"
	"runtime"
	"strconv"
	"strings"
	"unsafe"

	"quorin/lapacks"
)

var steps = 0

// QUORIN_FALSIFIED is the number of a step whose wanted value is falsified, for a proof that each can fail.
func expect(step string, value, wanted, tolerance float64) {
	steps++
	if strconv.Itoa(steps) == os.Getenv("QUORIN_FALSIFIED") {
		wanted += 1 + 2*tolerance
	}
	if !(math.Abs(value-wanted) <= tolerance) {
		fmt.Println(step, value, "instead of", wanted)
		os.Exit(1)
	}
	fmt.Println(step, value)
}

func dotProductInsideAnArray() {
	data := []float32{0, 1, 2, 3, 4, 5, 6}
	expect("sdot_Idx", float64(lapacks.Sdot_Idx(3, data, 1, 1, data, 4, 1)), 32, 0)
}

func singularValues() {
	a := []float32{1, 3, 5, 2, 4, 6} // 3 x 2, by columns
	s, size := make([]float32, 2), make([]float32, 1)
	var info int32
	lapacks.Sgesvd('N', 'N', 3, 2, a, 3, s, nil, 1, nil, 1, size, -1, &info)
	work := make([]float32, int(size[0]))
	lapacks.Sgesvd('N', 'N', 3, 2, a, 3, s, nil, 1, nil, 1, work, int32(len(work)), &info)
	expect("sgesvd, info", float64(info), 0, 0)
	expect("sgesvd, s(1)", float64(s[0]), 9.5255181, 1e-5)
	expect("sgesvd, s(2)", float64(s[1]), 0.5143006, 1e-5)
}

// A routine with more words of arguments than a call of Go may have: its index form goes through the plain one.
func generalizedEigenvalues() {
	n := int32(2)
	a, b := []float32{0, 2, 0, 0, 3}, []float32{0, 0, 1, 0, 0, 1} // from elements 1 and 2 on: diag(2, 3) and the unit matrix
	v := func() []float32 { return make([]float32, n) }
	alphar, alphai, beta, lscale, rscale, rconde, rcondv := v(), v(), v(), v(), v(), v(), v()
	work, iwork, bwork := make([]float32, 64), make([]int32, 8), make([]int32, 2)
	var ilo, ihi, info int32
	var abnrm, bbnrm float32
	lapacks.Sggevx_Idx('N', 'N', 'N', 'N', n, a, 1, n, b, 2, n, alphar, 0, alphai, 0, beta, 0, nil, 0, 1, nil, 0, 1, &ilo, &ihi,
		lscale, 0, rscale, 0, &abnrm, &bbnrm, rconde, 0, rcondv, 0, work, 0, 64, iwork, 0, bwork, 0, &info)
	expect("sggevx_Idx, info", float64(info), 0, 0)
	expect("sggevx_Idx", float64(alphar[0]/beta[0]+alphar[1]/beta[1]), 5, 1e-5)
}

func sparseLU() {
	var report strings.Builder
	lapacks.Set_printf_callback_32f(lapacks.TextOutput(func(text string) { report.WriteString(text) }))
	control, x := make([]float32, lapacks.UMFPACK_CONTROL), make([]float32, 5)
	lapacks.Umfpack_di_defaults(control)
	control[lapacks.UMFPACK_PRL] = 2
	starts, rows := []int32{0, 2, 5, 9, 10, 12}, []int32{0, 1, 0, 2, 4, 1, 2, 3, 4, 2, 1, 4}
	values, b := []float32{2, 3, 3, -1, 4, 4, -3, 1, 2, 2, 6, 1}, []float32{8, 45, -3, 3, 19}
	var symbolic, numeric unsafe.Pointer
	lapacks.Umfpack_di_symbolic(5, 5, starts, rows, values, &symbolic, control, nil)
	lapacks.Umfpack_di_numeric(starts, rows, values, symbolic, &numeric, control, nil)
	status := lapacks.Umfpack_di_solve(lapacks.UMFPACK_A, starts, rows, values, x, b, numeric, control, nil)
	lapacks.Umfpack_di_report_status(control, status)
	lapacks.Umfpack_di_free_symbolic(&symbolic)
	lapacks.Umfpack_di_free_numeric(&numeric)
	lapacks.Set_printf_callback_32f(0)
	for i := range x {
		expect("umfpack_di_solve", float64(x[i]), float64(i+1), 1e-5)
	}
	expect("report through the callback", float64(strings.Count(report.String(), "OK")), 1, 0)
}

func conjugateGradients() {
	const n = 10 // -1 2 -1, with 1, 1, ... for a solution
	x, b, tmp, dpar, ipar := make([]float64, n), make([]float64, n), make([]float64, 4*n), make([]float64, 128), make([]int32, 128)
	b[0], b[n-1] = 1, 1
	var request int32
	lapacks.DCG_INIT(n, x, b, &request, ipar, dpar, tmp)
	ipar[lapacks.QUORIN_RCI_IPAR_RESIDUAL_TEST-1] = 1
	ipar[lapacks.QUORIN_RCI_IPAR_HOST_TEST-1] = 0
	dpar[lapacks.QUORIN_RCI_DPAR_RELATIVE_TOLERANCE-1] = 1e-10
	for {
		lapacks.DCG(n, x, b, &request, ipar, dpar, tmp)
		if request != lapacks.QUORIN_RCI_MULTIPLY {
			break
		}
		p := append(append([]float64{0}, tmp[:n]...), 0)
		for i := 1; i <= n; i++ {
			tmp[n+i-1] = 2*p[i] - p[i-1] - p[i+1]
		}
	}
	expect("DCG, request", float64(request), 0, 0)
	for _, value := range x {
		expect("DCG", value, 1, 1e-8)
	}
}

// The same system, its upper triangle by rows, from 1.
func directSolution() {
	const n = 10
	starts, columns, values := []int32{1}, []int32{}, []float64{}
	x, b := make([]float64, n), make([]float64, n)
	for i := int32(1); i <= n; i++ {
		columns, values = append(columns, i), append(values, 2)
		if i < n {
			columns, values = append(columns, i+1), append(values, -1)
		}
		starts = append(starts, int32(len(columns)+1))
	}
	b[0], b[n-1] = 1, 1
	handle, iparm := make([]unsafe.Pointer, lapacks.QUORIN_PARDISO_HANDLE_WORDS), make([]int32, lapacks.QUORIN_PARDISO_PARAMETERS)
	order, one, silent, kind := int32(n), int32(1), int32(lapacks.QUORIN_PARDISO_SILENT), int32(lapacks.QUORIN_PARDISO_REAL_POSITIVE_DEFINITE)
	var failure int32
	lapacks.SPARDISOINIT(handle, kind, iparm)
	lapacks.SPARDISO_64f_Idx(handle, &one, &one, &kind, lapacks.QUORIN_PARDISO_ANALYSE_FACTORIZE_SOLVE, &order, values, 0, starts, 0,
		columns, 0, nil, 0, &one, iparm, 0, &silent, b, 0, x, 0, &failure)
	expect("PARDISO, error", float64(failure), lapacks.QUORIN_PARDISO_DONE, 0)
	for _, value := range x {
		expect("PARDISO", value, 1, 1e-12)
	}
	lapacks.PARDISO(handle, nil, nil, nil, lapacks.QUORIN_PARDISO_FREE_ALL, nil, nil, nil, nil, nil, nil, nil, nil, nil, nil, &failure)
	expect("PARDISO, freed", float64(failure), lapacks.QUORIN_PARDISO_DONE, 0)
}

func leastSquaresUnderCollection() {
	const m, n = 8, 2
	decay := func(x, f []float32) {
		runtime.GC()
		for t := range f {
			f[t] = float32(float64(x[0])*math.Exp(-float64(x[1])*float64(t)) - 3*math.Exp(-0.5*float64(t)))
		}
	}
	function := lapacks.VectorFunction(decay)
	x, f, jacobian, step := []float32{1, 1}, make([]float32, m), make([]float32, m*n), []float32{1e-3}
	eps := []float32{1e-6, 1e-6, 1e-6, 1e-6, 1e-6, 0}
	var run unsafe.Pointer
	var request int32
	lapacks.Strnlsp_init(&run, n, m, x, eps, 100, 100, 0)
	decay(x, f)
	lapacks.Sjacobi(function, n, m, jacobian, x, step)
	for request >= 0 {
		lapacks.Strnlsp_solve(&run, f, jacobian, &request)
		if request == lapacks.QUORIN_TRUST_REGION_RESIDUAL {
			decay(x, f)
		}
		if request == lapacks.QUORIN_TRUST_REGION_JACOBIAN {
			lapacks.Sjacobi(function, n, m, jacobian, x, step)
		}
	}
	lapacks.Strnlsp_delete(&run)
	expect("strnlsp, a", float64(x[0]), 3, 1e-3)
	expect("strnlsp, b", float64(x[1]), 0.5, 1e-3)
}

// Numbers of 64 bits by value are two words, and a result comes from the FPU's stack.
func vectors() {
	x, y, r := []float64{3, 4}, []float64{1, 1}, make([]float64, 2)
	lapacks.Taucs_dvec_axpby(2, 2, x, -1, y, r)
	expect("taucs_dvec_axpby", r[0]+10*r[1], 75, 0)
	expect("taucs_vec_norm2", lapacks.Taucs_vec_norm2(2, lapacks.TAUCS_DOUBLE, unsafe.Pointer(&x[0])), 5, 1e-15)
}

func main() {
	wanted, _ := strconv.ParseFloat(os.Args[1], 64)
	count, err := lapacks.Bind()
	if err != nil {
		fmt.Println(err)
		os.Exit(1)
	}
	expect("exports bound", float64(count), wanted, 0)
	dotProductInsideAnArray()
	singularValues()
	generalizedEigenvalues()
	sparseLU()
	conjugateGradients()
	directSolution()
	leastSquaresUnderCollection()
	vectors()
	fmt.Println("the tour is right:", steps, "steps")
}
