a later year, as a number || new:10a || || use:10a rec:9c.1.0_10a
the first number before the second || new:9c.0.9 || NOTNEWER:9c.0.9 vs. 9c.1.0
a newer second number, 08 being 8 || new:9c.1.08 || || use:9c.1.08 rec:9c.1.0_9c.1.08
numbers, not texts || new:9c.1.00 || NOTNEWER:9c.1.00 vs. 9c.1.0
an absent number is older than 0 || use:9d new:9d.0 || || use:9d.0 marker rec:9d_9d.0
letters as texts, not by length || new:9bz || NOTNEWER:9bz vs. 9c.1.0
a number beyond 32 bits || new:9d.2147483648 || LOCATE
no capitals || new:9D || UNPARSED:9D | NOTNEWER:9D vs. 9c.1.0
no version without letters || new:10 || UNPARSED:10 | NOTNEWER:10 vs. 9c.1.0
no version without a year || new:d || UNPARSED:d | NOTNEWER:d vs. 9c.1.0
numbers after dots only || new:9d_1 || UNPARSED:9d_1 | NOTNEWER:9d_1 vs. 9c.1.0
the second too || new:9d.1_0 || UNPARSED:9d.1_0 | NOTNEWER:9d.1_0 vs. 9c.1.0
no number after a dot || new:9d. || UNPARSED:9d. | NOTNEWER:9d. vs. 9c.1.0
no third number || new:9d.1.0.5 || UNPARSED:9d.1.0.5 | NOTNEWER:9d.1.0.5 vs. 9c.1.0
