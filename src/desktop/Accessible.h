#pragma once

namespace desktop {

/// Tells screen readers what each view is: its role, name, text and state.
void InstallAccessibility();

}  // namespace desktop
