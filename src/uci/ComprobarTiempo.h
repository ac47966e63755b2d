// Clock and input during a search: the only channel into it.
#pragma once

// Called at every node right after the node counter was raised. One node in 2048 it tests the budget and reads a
// waiting line of input; it sets TipoJuego.Parar when time is over or the line is "stop", and drops other lines. Full
// UCI has limits and rules of its own (SondeoCompleto). When nobody reads the output any more it raises Salir too.
void ComprobarTiempo();
