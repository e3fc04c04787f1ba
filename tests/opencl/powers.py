"""Prints the bits of some powers that a kernel computes, whose binary PyOpenCL keeps between runs."""
import numpy
import pyopencl

context = pyopencl.Context(pyopencl.get_platforms()[0].get_devices())
queue = pyopencl.CommandQueue(context)
program = pyopencl.Program(context, """
    kernel void powers(global float* x) {
      const size_t i = get_global_id(0);
      x[i] = pow(1.0f + 0.37f * i, 3.3f);
    }""").build()
powers = numpy.zeros(256, numpy.float32)
memory = pyopencl.Buffer(context, pyopencl.mem_flags.READ_WRITE, powers.nbytes)
program.powers(queue, powers.shape, None, memory)
pyopencl.enqueue_copy(queue, powers, memory)
print(powers.tobytes().hex())
