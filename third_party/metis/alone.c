/* For programs that call METIS as it is, on one thread: those that keep sessions bring functions of their own instead.
 */
#include "session.h"

#include <stddef.h>

static quorin_metis_session first = {NULL, -1, {}, {}, QUORIN_RANDOM_WORDS + 1};
static quorin_metis_session* current = &first;

quorin_metis_session* quorin_metis_current(void) { return current; }

int quorin_metis_set_current(quorin_metis_session* session) {
  current = session == NULL ? &first : session;
  return 1;
}
