// The engine's evaluation as the tuner sees it: a position in, its score and what each weight has to do with it out.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "afinar/Regresion.h"

// Starts the engine without book, tablebases and evaluation cache. To be called once, before everything else.
void ArrancarMotor();

// The weights of the evaluation, in the order of their record.
std::vector<int> LeerPesos();
void             PonerPesos(const std::vector<int>& pesos);

// Can the tuner learn from this position? Not when the side to move is in check or could take the king, when a capture
// or promotion changes the score, or when the knowledge of an ending answers in the evaluation's place.
bool EsTranquila(std::string_view fen);

// The moves from a position to the one that a search of one ply and its quiescence ends in and judges by. False when
// that is decided by a rule, by mate or by the knowledge of an ending, or when the side to move could take the king.
bool BuscarHoja(std::string_view fen, std::vector<std::uint32_t>& jugadas);

// Score of the position behind these moves at the present weights, centipawns, White's view; appends what one unit of
// each weight adds to it, by ascending weight. Throws std::runtime_error when the weights that the evaluation says it
// has used do not add up to its score.
double Observar(std::string_view fen, const std::vector<std::uint32_t>& jugadas,
                std::vector<Coeficiente>& coeficientes);
