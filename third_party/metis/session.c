#include "session.h"

#include <metislib.h>

static int enter(quorin_metis_session* session) {
  session->memory = NULL;
  session->jump_count = -1;
  session->random_used = QUORIN_RANDOM_WORDS + 1;
  return quorin_metis_set_current(session);
}

static void leave(void) { quorin_metis_set_current(NULL); }

int quorin_metis_dissect(idx_t n, idx_t* starts, idx_t* adjacency, idx_t* permutation, idx_t* inverse) {
  quorin_metis_session session;
  int result;
  if (!enter(&session)) return METIS_ERROR_MEMORY;
  result = METIS_NodeND(&n, starts, adjacency, NULL, NULL, permutation, inverse);
  leave();
  return result;
}

/* As METIS_NodeND begins. */
static void separate(idx_t n, idx_t* starts, idx_t* adjacency, idx_t* part) {
  idx_t i, j;
  ctrl_t* ctrl = SetupCtrl(METIS_OP_OMETIS, NULL, 1, 3, NULL, NULL);
  idx_t *const group_starts = imalloc(n + 1, "group_starts"), *const groups = imalloc(n, "groups");
  graph_t* graph;
  if (ctrl == NULL) gk_errexit(SIGERR, "no control");
  graph = CompressGraph(ctrl, n, starts, adjacency, NULL, group_starts, groups);
  ctrl->compress = graph != NULL;
  if (!ctrl->compress) {
    graph = SetupGraph(ctrl, n, 1, starts, adjacency, NULL, NULL, NULL);
  } else if (1.0 * n / graph->nvtxs > 1.5) {
    ctrl->nseps = 2;
  }
  AllocateWorkSpace(ctrl, graph);
  MlevelNodeBisectionMultiple(ctrl, graph);
  for (i = 0; i < graph->nvtxs; ++i) {
    if (!ctrl->compress) {
      part[i] = graph->where[i];
    } else {
      for (j = group_starts[i]; j < group_starts[i + 1]; ++j) part[groups[j]] = graph->where[i];
    }
  }
  FreeGraph(&graph);
  FreeCtrl(&ctrl);
}

int quorin_metis_separate(idx_t n, idx_t* starts, idx_t* adjacency, idx_t* part) {
  quorin_metis_session session;
  int signal_number;
  if (!enter(&session)) return METIS_ERROR_MEMORY;
  if (!gk_malloc_init()) {
    leave();
    return METIS_ERROR_MEMORY;
  }
  gk_sigtrap();
  signal_number = gk_sigcatch();
  if (signal_number == 0) separate(n, starts, adjacency, part);
  gk_siguntrap();
  gk_malloc_cleanup(0); /* frees all that is left */
  leave();
  return metis_rcode(signal_number);
}
