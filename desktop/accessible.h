// What screen readers are told beyond what the toolkit tells: roles, labels, what lies covered, the table of twenty.
#pragma once

namespace desktop {

// Once for the whole program; later calls do nothing.
void InstallAccessibility();

}  // namespace desktop
