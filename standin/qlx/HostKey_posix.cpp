#include "qlx/HostKey.h"

namespace qlx::lib
{
CString application_key() { return CString(); } // no application object here: programs register a key
} // namespace qlx::lib
