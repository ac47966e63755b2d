// What the piece counts alone tell about an ending.
#pragma once

// Arguments: white pawns, knights, bishops, rooks and queens, then Black's. Returns the percentage of the normal
// score that the material deserves, whoever stands better: 0 = dead draw, 100 = no special knowledge. It is 0 only
// where neither side can force a win, and exchanging the colours returns the same. Any counts of 0 or more are
// accepted.
int FinalesReconocidos(int pb, int cb, int ab, int tb, int db, int pn, int cn, int an, int tn, int dn);
