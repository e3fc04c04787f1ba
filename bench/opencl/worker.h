// The process that measures kernels, told what to do through a pipe.
#pragma once

namespace lanemath::bench::opencl {

// Its first line says whose built-ins its kernels run, `own` or `lanemath`, and on which device. It then answers each
// order with a line:
//   prepare INDEX COUNT WIDTH...   compiles the kernels of one built-in, by its place in all_builtins(): ready
//   time WIDTH                     runs one of these kernels: nanoseconds per lane
// It ends when there are no more orders.
void obey();

}  // namespace lanemath::bench::opencl
