#pragma once

#include_next <sys/socket.h>

#include <sys/types.h>

#define SO_NOSIGPIPE 0x1022

extern "C" int getpeereid(int socket, uid_t* user, gid_t* group);
