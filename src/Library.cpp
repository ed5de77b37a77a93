// libcondtree has no code of its own: it gathers the folders beside this file.
