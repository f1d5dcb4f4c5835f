#ifndef QUEUEWIZ_STARTUP_H
#define QUEUEWIZ_STARTUP_H

// The whole start-up of queuewiz; main() only calls this.
int queuewizMain(int argc, char **argv);

#endif
