#include "table.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <wchar.h>

void table_add(Table *table, const char *const *texts) {
    if (table->rows == 0) {
        while (table->columns < TABLE_COLUMNS && texts[table->columns] != NULL) {
            table->columns++;
        }
    }
    if (table->rows == TABLE_ROWS) {
        return;
    }
    for (int column = 0; column < table->columns; column++) {
        snprintf(table->cell[table->rows][column], TABLE_CELL, "%s", texts[column]);
    }
    table->rows++;
}

/* Places on the screen, two for a Chinese character. */
static int places(const char *text) {
    wchar_t wide[TABLE_CELL];
    const size_t length = mbstowcs(wide, text, TABLE_CELL);
    const int width = length == (size_t)-1 ? -1 : wcswidth(wide, length);
    return width >= 0 ? width : (int)strlen(text);
}

static int column_width(const Table *table, int column) {
    int width = 0;
    for (int row = 0; row < table->rows; row++) {
        const int cell = places(table->cell[row][column]);
        width = cell > width ? cell : width;
    }
    return width;
}

static void print_row(const Table *table, int row, const int *widths) {
    printf("   ");
    for (int column = 0; column < table->columns; column++) {
        const char *text = table->cell[row][column];
        const int last = column + 1 == table->columns;
        printf(" %s%*s", text, last ? 0 : widths[column] - places(text) + 1, "");
    }
    printf("\n");
}

static void print_rule(const Table *table, const int *widths) {
    printf("   ");
    for (int column = 0; column < table->columns; column++) {
        printf(" ");
        for (int place = 0; place < widths[column]; place++) {
            printf("─");
        }
        printf(column + 1 == table->columns ? "" : " ");
    }
    printf("\n");
}

void table_print(const Table *table) {
    int widths[TABLE_COLUMNS] = {0};
    for (int column = 0; column < table->columns; column++) {
        widths[column] = column_width(table, column);
    }
    printf("\n");
    for (int row = 0; row < table->rows; row++) {
        print_row(table, row, widths);
        if (row == 0) {
            print_rule(table, widths);
        }
    }
    printf("\n");
}
