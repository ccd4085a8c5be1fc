#pragma once
// Pictures of the tool windows and controls that stand on their own.

namespace Screenshots {
class Session;
}

// calculator, calculator-dark, altitude-field.
void shootToolWindows(Screenshots::Session& session);
