// Shows which built-ins a program gets: the driver's version, asked for in every form, and the bits of some powers.
#define CL_TARGET_OPENCL_VERSION 120
#include <CL/cl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define CHECK(condition) \
  if (!(condition)) return fprintf(stderr, "probe: line %d: %s\n", __LINE__, #condition), 1

int main(void) {
  cl_platform_id platform;
  CHECK(clGetPlatformIDs(1, &platform, NULL) == CL_SUCCESS);
  const cl_context_properties properties[] = {CL_CONTEXT_PLATFORM, (cl_context_properties)platform, 0};
  cl_int error;
  const cl_context context = clCreateContextFromType(properties, CL_DEVICE_TYPE_ALL, NULL, NULL, &error);
  CHECK(error == CL_SUCCESS);
  cl_device_id device;
  CHECK(clGetContextInfo(context, CL_CONTEXT_DEVICES, sizeof device, &device, NULL) == CL_SUCCESS);

  size_t size = 0, again = 0;
  CHECK(clGetDeviceInfo(device, CL_DRIVER_VERSION, 0, NULL, &size) == CL_SUCCESS);
  char version[256] = "";
  CHECK(size > 1 && size <= sizeof version);
  CHECK(clGetDeviceInfo(device, CL_DRIVER_VERSION, 0, NULL, NULL) == CL_SUCCESS);
  CHECK(clGetDeviceInfo(device, CL_DRIVER_VERSION, size - 1, version, NULL) == CL_INVALID_VALUE && !*version);
  CHECK(clGetDeviceInfo(device, CL_DRIVER_VERSION, 0, version, NULL) == CL_INVALID_VALUE);
  CHECK(clGetDeviceInfo(device, CL_DRIVER_VERSION, size, version, NULL) == CL_SUCCESS);
  CHECK(strlen(version) + 1 == size);
  CHECK(clGetDeviceInfo(device, CL_DRIVER_VERSION, sizeof version, version, &again) == CL_SUCCESS && again == size);
  CHECK(clGetDeviceInfo(NULL, CL_DRIVER_VERSION, sizeof version, version, NULL) == CL_INVALID_DEVICE);

  const char* source =
      "#pragma OPENCL FP_CONTRACT OFF\n"
      "kernel void powers(global float* x) {\n"
      "  const size_t i = get_global_id(0);\n"
      "  x[i] = pow(1.0f + 0.37f * i, 3.3f);\n"
      "}\n";
  const cl_program program = clCreateProgramWithSource(context, 1, &source, NULL, &error);
  CHECK(clBuildProgram(program, 1, &device, NULL, NULL, NULL) == CL_SUCCESS);
  const cl_kernel kernel = clCreateKernel(program, "powers", &error);
  const cl_command_queue queue = clCreateCommandQueue(context, device, 0, &error);
  unsigned powers[256];
  const size_t number = sizeof powers / sizeof *powers;
  const cl_mem memory = clCreateBuffer(context, CL_MEM_READ_WRITE, sizeof powers, NULL, &error);
  CHECK(clSetKernelArg(kernel, 0, sizeof memory, &memory) == CL_SUCCESS);
  CHECK(clEnqueueNDRangeKernel(queue, kernel, 1, NULL, &number, NULL, 0, NULL, NULL) == CL_SUCCESS);
  CHECK(clEnqueueReadBuffer(queue, memory, CL_TRUE, 0, sizeof powers, powers, 0, NULL, NULL) == CL_SUCCESS);

  // Children inherit this: the cache must not be one of the library's kernels.
  const char* const cache = getenv("POCL_CACHE_DIR");
  printf("version: %s\ncache: %s\nbits:", version, cache ? cache : "unset");
  for (size_t i = 0; i < number; ++i) printf(" %x", powers[i]);
  printf("\n");
  return 0;
}
