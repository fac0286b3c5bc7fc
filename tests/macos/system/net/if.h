#pragma once

#include_next <net/if.h>

#include <sys/types.h>

/// Counters of one interface; the last change is in a record of two 32-bit numbers.
struct if_data {
    u_char ifi_type;
    u_char ifi_typelen;
    u_char ifi_physical;
    u_char ifi_addrlen;
    u_char ifi_hdrlen;
    u_char ifi_recvquota;
    u_char ifi_xmitquota;
    u_char ifi_unused1;
    u_int32_t ifi_mtu;
    u_int32_t ifi_metric;
    u_int32_t ifi_baudrate;
    u_int32_t ifi_ipackets;
    u_int32_t ifi_ierrors;
    u_int32_t ifi_opackets;
    u_int32_t ifi_oerrors;
    u_int32_t ifi_collisions;
    u_int32_t ifi_ibytes;
    u_int32_t ifi_obytes;
    u_int32_t ifi_imcasts;
    u_int32_t ifi_omcasts;
    u_int32_t ifi_iqdrops;
    u_int32_t ifi_noproto;
};
