#include "host/Host.h"

int main(int argc, char** argv) { return zarvil::host::runHost(argc, argv); }
