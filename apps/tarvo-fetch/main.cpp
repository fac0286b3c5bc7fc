#include "fetch.h"

int main(int argumentCount, char** arguments) {
    return tarvo::fetchToStandardOutput(argumentCount, arguments);
}
