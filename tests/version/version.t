# The order of versions, as updates newer or not than the system's 9c.1.0, and their grammar
a later year, as a number || update:10a latest:10a || || use:10a rec:9c.1.0_10a
the first number before the second || update:9c.0.9 latest:9c.0.9
    || NOTNEWER 9c.0.9 vs. 9c.1.0: ENOENT
a newer second number || update:9c.1.1 latest:9c.1.1 || || use:9c.1.1 rec:9c.1.0_9c.1.1
numbers, not texts || update:9c.1.00 latest:9c.1.00 || NOTNEWER 9c.1.00 vs. 9c.1.0: ENOENT
an absent number is older than 0 || use:9d update:9d.0 latest:9d.0 || || use:9d.0 marker rec:9d_9d.0
no capitals || update:9D latest:9D || PARSE 9D, results.size() = 0: ENOENT | PARSE 9D: ENOENT
    | NOTNEWER 9D vs. 9c.1.0: ENOENT
no version without letters || update:10 latest:10 || PARSE 10, results.size() = 0: ENOENT
    | PARSE 10: ENOENT | NOTNEWER 10 vs. 9c.1.0: ENOENT
numbers after dots only || update:9d_1 latest:9d_1 || PARSE 9d_1, results.size() = 0: ENOENT
    | PARSE 9d_1: ENOENT | NOTNEWER 9d_1 vs. 9c.1.0: ENOENT
no number after a dot || update:9d. latest:9d. || PARSE 9d., results.size() = 0: ENOENT
    | PARSE 9d.: ENOENT | NOTNEWER 9d. vs. 9c.1.0: ENOENT
