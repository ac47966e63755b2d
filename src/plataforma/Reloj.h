// The millisecond clock.
#pragma once

#include <cstdint>

// Milliseconds from a fixed point in the past; never runs backwards.
std::uint64_t ObtenerMilisegundos();
