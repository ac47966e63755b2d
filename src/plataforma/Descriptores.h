// How many files the process may still open.
#pragma once

// Raises the limit as far as the system grants. Returns 1 when so many more files can then be opened at once, else 0.
int HayDescriptores(int numero);
