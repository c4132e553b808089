#include "afxthrow.h"

#include <new>
#include <stdexcept>

void AfxThrowMemoryException() { throw std::bad_alloc(); }
void AfxThrowInvalidArgException() { throw std::invalid_argument("framework"); }
