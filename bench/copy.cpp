// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

/// Copies the first file to the second.
int main(int, char **argv)
{
    static char piece[65'536];
    const int from = open(argv[1], O_RDONLY);
    const int to = open(argv[2], O_WRONLY | O_CREAT | O_TRUNC, 0644);
    ssize_t size = 0;
    while ((size = read(from, piece, sizeof piece)) > 0) {
        if (write(to, piece, size_t(size)) != size)
            return 1;
    }
    return size == 0 ? 0 : 1;
}
