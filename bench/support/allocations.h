#pragma once

namespace bench
{
/// How often the program has called operator new. Programs that use this have one thread.
long allocations();
/// Bytes that are in use on the heap and beside it.
double allocated_bytes();
} // namespace bench
