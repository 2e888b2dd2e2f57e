/* Tables on the terminal, their columns aligned whatever the script of a text. */
#ifndef TABLE_H
#define TABLE_H

enum { TABLE_COLUMNS = 6, TABLE_ROWS = 16, TABLE_CELL = 160 };

typedef struct Table {
    int columns;
    int rows;
    char cell[TABLE_ROWS][TABLE_COLUMNS][TABLE_CELL]; /* row 0 is the heading */
} Table;

/* Adds a row of `columns` texts; the first row is the heading and says how many there are. */
void table_add(Table *table, const char *const *texts);

/* Prints the table on standard output. */
void table_print(const Table *table);

#endif
