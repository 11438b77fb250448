// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include <TavTermIPC.h>
#include <stdio.h>
#include <unistd.h>

int main(int argc, char** argv) { // PLANNER FOLDER
    char record[122], action = 0;
    if (argc != 3 || chdir(argv[2]) != 0)
        return 2;
    for (int started = 0; action != 'E'; action = record[98]) {
        FILE* file = fopen("transito.dat", "wb");
        fprintf(file, "%8sA2006010120061231%63s20060315%25s", "", "", "");
        fclose(file);
        if (started++)
            TvIpcSetEvento("mio-evento");
        else if (fork() == 0)
            return execl(argv[1], argv[1], "transito.dat", "1", "mio-evento", (char*)NULL);
        if (!TvIpcWaitEvento("mio-evento"))
            return 1; // the planner has died
        file = fopen("transito.dat", "rb");
        if (fgets(record, sizeof record, file) == NULL)
            return 1;
        fclose(file);
        printf("%.11s\n", record + 88);
        fflush(stdout);
    }
}
