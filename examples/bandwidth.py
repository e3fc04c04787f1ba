#!/usr/bin/python3
"""The width of the bumps that make up a kernel density estimate, chosen by cross-validation on an OpenCL device: the
one under which the observations are likeliest if each is estimated from the others. The kernel takes an exponential for
each width and pair of observations. Silverman's rule of thumb, by which kernel_density.cpp goes, takes a wider one for
data with two peaks, like the eruption times of the Old Faithful geyser.

    lanemath-opencl ./bandwidth.py data/old_faithful.csv
"""
import sys

import numpy
import pyopencl

KERNEL = """
// Eight widths at a time, for one observation.
kernel void left_out(global const float8* widths, global const float* x, int count, global float8* result) {
  const size_t k = get_global_id(0), i = get_global_id(1);
  const float8 per_width = 1 / widths[k];
  float8 sum = 0;
  for (int j = 0; j < count; ++j) {
    const float8 u = (x[j] - x[i]) * per_width;
    sum += j == i ? 0 : exp(-0.5f * u * u);
  }
  result[i * get_global_size(0) + k] = log(sum * per_width * (0.39894228f / (count - 1)));
}
"""


def read(path):
    x = numpy.loadtxt(path, numpy.float32, skiprows=1, ndmin=1)
    if x.ndim != 1 or len(x) < 3 or not numpy.isfinite(x).all():
        raise ValueError(f"{path}: needs a title and three numbers or more")
    return x


def mean_log_likelihoods(context, widths, x):
    queue = pyopencl.CommandQueue(context)
    program = pyopencl.Program(context, KERNEL).build()
    given = [pyopencl.Buffer(context, pyopencl.mem_flags.READ_ONLY | pyopencl.mem_flags.COPY_HOST_PTR, hostbuf=array)
             for array in (widths, x)]
    result = numpy.empty((len(x), len(widths)), numpy.float32)
    memory = pyopencl.Buffer(context, pyopencl.mem_flags.WRITE_ONLY, result.nbytes)
    program.left_out(queue, (len(widths) // 8, len(x)), None, *given, numpy.int32(len(x)), memory)
    pyopencl.enqueue_copy(queue, result, memory)
    return result.mean(0, dtype=numpy.float64)


def main(path):
    x = read(path)
    spread = x.std(ddof=1)
    if not spread > 0:
        raise ValueError(f"{path}: all observations are the same")
    widths = (spread * numpy.geomspace(0.02, 1, 64)).astype(numpy.float32)
    device = pyopencl.get_platforms()[0].get_devices()[0]
    mean = mean_log_likelihoods(pyopencl.Context([device]), widths, x)
    best = int(mean.argmax())
    print(f"{len(x)} observations on {device.name}, driver {device.driver_version}\n\n   width  log-likelihood")
    for k in sorted({*range(3, 64, 6), best}):
        print(f"{widths[k]:8.5f}  {mean[k]:14.5f}{'  best' if k == best else ''}")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(f"usage: {sys.argv[0]} DATA.csv")
    try:
        main(sys.argv[1])
    except (OSError, ValueError, pyopencl.Error) as error:
        sys.exit(str(error))
