// Development rules of the opening: centre pawns, and the pieces that get in their way.
#pragma once

// Adds to Puntos_OP of both sides. Applies in every phase; the interpolation makes it fade.
void EvaluarApertura();
