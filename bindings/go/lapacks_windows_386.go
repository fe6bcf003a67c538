// Package lapacks calls Quorin Lapacks from 32-bit Windows programs (GOOS=windows GOARCH=386), without cgo.
//
// Every export is a function; its name begins with a capital. Values that are only read are passed as they are, values that are written by
// their address, arrays as slices (nil is the null address), texts as strings. The DLL and its stdcall companion stand beside the program.
//
// An array that a routine keeps must stay reachable, in a variable that lives on, until its object is deleted.
package lapacks

import (
	"bytes"
	"syscall"
	"unsafe"
)

var (
	library = syscall.NewLazyDLL(libraryName)
	stdcall = syscall.NewLazyDLL(stdcallName)
	bound   []*syscall.LazyProc
)

func bind(dll *syscall.LazyDLL, name string) *syscall.LazyProc {
	proc := dll.NewProc(name)
	bound = append(bound, proc)
	return proc
}

// Bind finds every export at once, so that a library that lacks one is found out at the start. It returns their number.
// Without it, a function panics whose export is missing.
func Bind() (int, error) {
	for _, proc := range bound {
		if err := proc.Find(); err != nil {
			return 0, err
		}
	}
	return len(bound), nil
}

func address[T any](array []T) unsafe.Pointer {
	if len(array) == 0 {
		return nil
	}
	return unsafe.Pointer(&array[0])
}

// Text is a text ended by a zero; for arrays of texts, take the address of its first element.
func Text(text string) []byte {
	return append([]byte(text), 0)
}

// TextOutput makes a function of Go the receiver of reports, for Set_printf_callback_32f. It is never freed.
func TextOutput(receive func(text string)) uintptr {
	return syscall.NewCallback(func(text *[1 << 20]byte) uintptr {
		receive(string(text[:bytes.IndexByte(text[:], 0)]))
		return 0
	})
}

// VectorFunction makes a function of Go, which puts F(x) into f, an argument of Sjacobi. It is never freed.
func VectorFunction(function func(x, f []float32)) uintptr {
	return syscall.NewCallbackCDecl(func(m, n *int32, x, f *float32) uintptr {
		function(unsafe.Slice(x, *n), unsafe.Slice(f, *m))
		return 0
	})
}
