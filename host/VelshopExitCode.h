#ifndef VELSHOPEXITCODE_H
#define VELSHOPEXITCODE_H

/// What velshop tells the shell.
enum VelshopExitCode : int {
    EXIT_DONE = 0,
    EXIT_NO_PRICE = 1,  ///< the answer is that there is no price
    EXIT_DIFFERENT = 1, ///< two shops differ
    EXIT_FOUND = 1,     ///< the audit has errors or warnings
    EXIT_BAD_INPUT = 2  ///< a wrong argument or a document that can't be read
};

#endif
