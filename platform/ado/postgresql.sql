-- The suite's SQL dialect for PostgreSQL: isnumeric, left, val, string, len and the operator + between texts,
-- with the meanings they have on the embedded database. `tvdata new --connect TEXT` runs this file when it lays
-- out the tables of a database that has no tervo_dialect_1() yet; a file that says something else gets the next
-- number. Whoever makes a database by hand runs it once: psql -d DATABASE -f postgresql.sql. It may be run again.
--
-- left, a function of PostgreSQL's own with another meaning for negative counts, is called tervo_left here; the
-- provider puts that name into statements. trim is PostgreSQL's own.

-- -1 for a text that is a decimal number, blanks at either end left out; 0 for all else, NULL too.
CREATE OR REPLACE FUNCTION isnumeric(text) RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
    SELECT CASE WHEN $1 ~ '^[ \t\n\v\f\r]*[+-]?([0-9]+([.][0-9]*)?|[.][0-9]+)([eEdD][+-]?[0-9]+)?[ \t\n\v\f\r]*$'
                THEN -1 ELSE 0 END
$$;
CREATE OR REPLACE FUNCTION isnumeric(double precision) RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
    SELECT CASE WHEN $1 IS NULL THEN 0 ELSE -1 END
$$;

-- The first characters of a text; none for a negative count.
CREATE OR REPLACE FUNCTION tervo_left(text, bigint) RETURNS text LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
    SELECT pg_catalog.left($1, (CASE WHEN $2 < 0 THEN 0 WHEN $2 > 2147483647 THEN 2147483647 ELSE $2 END)::integer)
$$;
CREATE OR REPLACE FUNCTION tervo_left(anynonarray, bigint) RETURNS text LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
    SELECT tervo_left($1::text, $2)
$$;

-- What tervo_val does where a number is too large or too small for eight bytes: it stays finite.
CREATE OR REPLACE FUNCTION tervo_number(text) RETURNS double precision LANGUAGE plpgsql IMMUTABLE PARALLEL SAFE AS $$
BEGIN
    RETURN $1::double precision;
EXCEPTION WHEN numeric_value_out_of_range THEN
    RETURN CASE WHEN $1 LIKE '%e-%' THEN 0
                WHEN $1 LIKE '-%' THEN -1.7976931348623157e308
                ELSE 1.7976931348623157e308 END;
END
$$;

-- The value of the number that a text begins with, blanks left out; 0 where there is none.
CREATE OR REPLACE FUNCTION val(text) RETURNS double precision LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
    SELECT CASE
        WHEN $1 ~ '^[0-9]{1,15}$' THEN $1::double precision
        ELSE tervo_number(CASE WHEN $1 IS NULL THEN NULL ELSE coalesce(
            translate(substring(regexp_replace($1, '[ \t\n\v\f\r]', '', 'g')
                                from '^[+-]?(?:[0-9]+(?:[.][0-9]*)?|[.][0-9]+)(?:[eEdD][+-]?[0-9]+)?'), 'EdD', 'eee'),
            '0') END)
        END
$$;
CREATE OR REPLACE FUNCTION val(double precision) RETURNS double precision LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
    SELECT $1
$$;

-- The first character of a text as often as it says, at most 65535 times.
CREATE OR REPLACE FUNCTION string(bigint, text) RETURNS text LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
    SELECT repeat(pg_catalog.left($2, 1), (CASE WHEN $1 < 0 THEN 0 WHEN $1 > 65535 THEN 65535 ELSE $1 END)::integer)
$$;

-- The number of characters.
CREATE OR REPLACE FUNCTION len(text) RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
    SELECT char_length($1)
$$;
CREATE OR REPLACE FUNCTION len(anynonarray) RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
    SELECT char_length($1::text)
$$;

-- Between numbers + stays PostgreSQL's own; where one side is a text the two are joined.
CREATE OR REPLACE FUNCTION tervo_join(text, text) RETURNS text LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
    SELECT $1 || $2
$$;
CREATE OR REPLACE FUNCTION tervo_join(text, anynonarray) RETURNS text LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
    SELECT $1 || $2::text
$$;
CREATE OR REPLACE FUNCTION tervo_join(anynonarray, text) RETURNS text LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
    SELECT $1::text || $2
$$;
DROP OPERATOR IF EXISTS + (text, text);
DROP OPERATOR IF EXISTS + (text, anynonarray);
DROP OPERATOR IF EXISTS + (anynonarray, text);
CREATE OPERATOR + (LEFTARG = text, RIGHTARG = text, FUNCTION = tervo_join);
CREATE OPERATOR + (LEFTARG = text, RIGHTARG = anynonarray, FUNCTION = tervo_join);
CREATE OPERATOR + (LEFTARG = anynonarray, RIGHTARG = text, FUNCTION = tervo_join);

CREATE OR REPLACE FUNCTION tervo_dialect_1() RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$ SELECT 1 $$;
