# The order of versions, as updates newer or not than the system's 9c.1.0
a later year, as a number || update:10a latest:10a || || use:10a rec:9c.1.0_10a
letters before numbers || update:9b.9 latest:9b.9 || NOTNEWER 9b.9 vs. 9c.1.0 ||
letters as text: a longer one is newer || update:9ca latest:9ca || || use:9ca rec:9c.1.0_9ca
letters as text: a later one is newer || update:9bz latest:9bz || NOTNEWER 9bz vs. 9c.1.0 ||
the first number before the second || update:9c.0.9 latest:9c.0.9 || NOTNEWER 9c.0.9 vs. 9c.1.0 ||
a newer second number || update:9c.1.1 latest:9c.1.1 || || use:9c.1.1 rec:9c.1.0_9c.1.1
no number is older than any || update:9c.1 latest:9c.1 || NOTNEWER 9c.1 vs. 9c.1.0 ||
