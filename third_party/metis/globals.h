/* Read ahead of each source of METIS: its global variables, whose declarations the recipe takes out, are members of the
   calling thread's session. */
#ifndef QUORIN_METIS_GLOBALS_H
#define QUORIN_METIS_GLOBALS_H

#include <setjmp.h>
#include <stdint.h>

#define QUORIN_JUMPS 4
#define QUORIN_RANDOM_WORDS 312

struct quorin_metis_session {
  void* memory;
  int jump_count;
  jmp_buf jumps[QUORIN_JUMPS];
  uint64_t random[QUORIN_RANDOM_WORDS];
  int random_used;
};
/* Which session it is does not change while METIS works, so that a function need ask only once. */
struct quorin_metis_session* quorin_metis_current(void) __attribute__((const));

/* memory.c */
#define gkmcore (*(gk_mcore_t**)&quorin_metis_current()->memory)
/* error.c */
#define gk_cur_jbufs (quorin_metis_current()->jump_count)
#define gk_jbufs (quorin_metis_current()->jumps)
#define gk_jbuf (quorin_metis_current()->jumps[0])
/* random.c; both are names of others elsewhere */
#define QUORIN_RANDOM_STATE (quorin_metis_current()->random)
#define QUORIN_RANDOM_USED (quorin_metis_current()->random_used)

#endif
