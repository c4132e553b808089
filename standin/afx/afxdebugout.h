#pragma once

/// Writes \p text where the system shows debug output.
void afx_debug_out(const wchar_t* text);
