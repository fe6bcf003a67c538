// The library and its scalar types.
using System;
using System.Runtime.InteropServices;

namespace Quorin.Lapacks
{
    /// <summary>The library that all classes of this namespace call. It is one of 32 bits.</summary>
    public static class Library
    {
        public const string Name = "@QUORIN_PRODUCT@.dll";

        /// <summary>Binds every export at once, so that a library that lacks one is found out at the start.</summary>
        /// <exception cref="BadImageFormatException">This process is one of 64 bits: build the program for x86.</exception>
        /// <exception cref="EntryPointNotFoundException">The library is an older one.</exception>
        /// <returns>The number of exports.</returns>
        public static int Bind()
        {
            if (IntPtr.Size != 4)
                throw new BadImageFormatException(Name + " is a library of 32 bits, and this process is one of 64: build the program for x86.");
            int count = 0;
            foreach (Type type in typeof(Library).Assembly.GetTypes())
            {
                if (type.Namespace != "Quorin.Lapacks" || !type.IsAbstract || !type.IsSealed) continue;
                foreach (System.Reflection.MethodInfo method in type.GetMethods())
                {
                    if ((method.Attributes & System.Reflection.MethodAttributes.PinvokeImpl) == 0) continue;
                    Marshal.Prelink(method);
                    ++count;
                }
            }
            return count;
        }
    }

    /// <summary>An object of the library's: freed once, by Dispose or when nobody refers to it, and not while a call uses it.</summary>
    internal sealed class ObjectHandle : SafeHandle
    {
        private readonly Release release;
        private GCHandle kept;

        /// <param name="kept">what the library keeps the address of; it stays pinned as long as the object</param>
        public ObjectHandle(IntPtr address, Release release, GCHandle kept = default) : base(IntPtr.Zero, true)
        {
            this.release = release;
            this.kept = kept;
            SetHandle(address);
        }

        /// <summary>Frees the object and sets its address to null.</summary>
        public delegate void Release(ref IntPtr address);

        public override bool IsInvalid => handle == IntPtr.Zero;

        /// <summary>What a routine answers that is given the object's address.</summary>
        /// <exception cref="ObjectDisposedException">There has been a Dispose.</exception>
        public int Use(Func<IntPtr, int> routine)
        {
            bool isHeld = false;
            try
            {
                DangerousAddRef(ref isHeld);
                return routine(handle);
            }
            finally
            {
                if (isHeld) DangerousRelease();
            }
        }

        protected override bool ReleaseHandle()
        {
            release(ref handle);
            if (kept.IsAllocated) kept.Free();
            return true;
        }
    }

    /// <summary>Two floats, the real part first.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct FloatComplex
    {
        public float Re, Im;

        public FloatComplex(float re, float im = 0)
        {
            Re = re;
            Im = im;
        }

        public override string ToString() => $"({Re}, {Im})";
    }

    /// <summary>Two doubles, the real part first.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct DoubleComplex
    {
        public double Re, Im;

        public DoubleComplex(double re, double im = 0)
        {
            Re = re;
            Im = im;
        }

        public override string ToString() => $"({Re}, {Im})";
    }

    /// <summary>A routine answered with a status that is no success.</summary>
    public class LapacksException : Exception
    {
        public LapacksException(string routine, int status)
            : base($"{routine} answered with status {status}")
        {
            Routine = routine;
            Status = status;
        }

        public string Routine { get; }
        public int Status { get; }
    }
}
