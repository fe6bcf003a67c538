/* METIS for several threads at a time: what it keeps in global variables stands in a session, of which each call has
   its own. Installed beside metis.h. */
#ifndef QUORIN_METIS_SESSION_H
#define QUORIN_METIS_SESSION_H

#include <metis.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct quorin_metis_session quorin_metis_session;

/* A program that calls METIS from several threads defines these two: the session of the calling thread, null at first;
   and its replacement, which is false if it cannot be kept. */
quorin_metis_session* quorin_metis_current(void);
int quorin_metis_set_current(quorin_metis_session* session);

/* METIS_NodeND with default options: METIS_OK, METIS_ERROR_MEMORY, or another error of METIS. */
int quorin_metis_dissect(idx_t n, idx_t* starts, idx_t* adjacency, idx_t* permutation, idx_t* inverse);

/* The first step of that alone: part[v] becomes 0 or 1 for a vertex of either side, 2 for one of the separator. */
int quorin_metis_separate(idx_t n, idx_t* starts, idx_t* adjacency, idx_t* part);

#ifdef __cplusplus
}
#endif

#endif
