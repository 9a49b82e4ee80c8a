#pragma once

namespace varenta {

/// Ends the road of a simulation: unloads its screens and returns to the main window.
void fecharCaminho();

/// Unloads the screens that show a strip: they can't outlive the one that it was calculated on.
void fecharResultados();

} // namespace varenta
