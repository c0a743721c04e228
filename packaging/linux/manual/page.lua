-- Makes a manual page of one of our documents: pandoc's filter. The document's title, "Purpose: NAME", becomes the
-- page's first section, each row of a table an entry with the last column as its text, since a terminal is too narrow
-- for tables; links, which lead to other documents, leave their words.

-- Adds a cell to a text behind its heading, which what a key means needs none of.
local function add_cell(text, heading, cell, between)
  local word = pandoc.utils.stringify(heading):lower()
  if pandoc.utils.stringify(cell) ~= "" then
    text:insert(pandoc.Str(between .. (word == "meaning" and "" or word .. ": ")))
    text:extend(pandoc.utils.blocks_to_inlines(cell))
  end
end

function Link(link)
  return link.content
end

function Table(table)
  local simple = pandoc.utils.to_simple_table(table)
  local entries = {}
  for _, row in ipairs(simple.rows) do
    local term = pandoc.utils.blocks_to_inlines(row[1])
    for column = 2, #row - 1 do
      add_cell(term, simple.headers[column], row[column], ", ")
    end
    local text = pandoc.List()
    add_cell(text, simple.headers[#row], row[#row], "")
    entries[#entries + 1] = { term, { { pandoc.Plain(text) } } }
  end
  return pandoc.DefinitionList(entries)
end

function Pandoc(document)
  local purpose, name = pandoc.utils.stringify(document.meta.title):match("^(.*): (.*)$")
  document.meta.title = pandoc.MetaString(name:upper())
  document.blocks:insert(1, pandoc.Header(1, pandoc.Str("NAME")))
  document.blocks:insert(2, pandoc.Para({ pandoc.Str(name .. " - " .. purpose:lower() .. " of Velmora") }))
  document.blocks:insert(3, pandoc.Header(1, pandoc.Str("DESCRIPTION")))
  return document
end
