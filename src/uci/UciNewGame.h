// The start of a new game.
#pragma once

// Clears all that belongs to one game (key history, search tables, transposition table, limits, what is known of
// the book line) and sets up the start position. Options and the tablebase library persist.
void UciNewGame();
