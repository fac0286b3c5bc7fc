#pragma once

#include_next <sys/socket.h>

#define AF_LINK 18
