-- Dissects captures of the serial line to a Psion Organiser II, as velmorad --capture makes them.
--
--   tshark -X lua_script:organiser.lua -r line.pcapng
--
-- A frame is SYN DLE STX, a body with every DLE doubled, DLE ETX, and the CRC-16/ARC of the body, low byte first. The
-- body is 01, type + sequence number, data. What goes on is followed in the first pass over the packets, since a frame
-- may lie in several and means what the ones before it make of it; what was found is kept for each packet.

local organiser = Proto("organiser", "Psion Organiser II link")

local SYN, DLE, STX, ETX = 0x16, 0x10, 0x02, 0x03
local ACK, DISCON, CONNECT, DATA = 0, 8, 16, 24
local FROM_ORGANISER, FROM_SERVER = 1, 0 -- pinfo.p2p_dir: received and sent by the server

local TYPES = { [ACK] = "ACK", [DISCON] = "DISCON", [CONNECT] = "CONNECT", [DATA] = "DATA" }
local CODES = {
  [0] = "no reason", [185] = "record longer than the maximum", [186] = "disk full", [187] = "file exists",
  [188] = "request does not fit the open file", [189] = "no such file", [190] = "invalid request or unknown service",
  [192] = "too many send errors", [193] = "wrong sequence number", [199] = "a file is already open",
  [238] = "end of file",
}
local OPERATIONS = { [0] = "open", [1] = "close", [2] = "write", [3] = "read", [4] = "seek" }
local MODES = { [0] = "read", [1] = "create or replace", [2] = "replace", [3] = "create new", [4] = "append" }
local KINDS = { [0] = "bytes", [1] = "text", [2] = "short names", [3] = "long names" }
local FILE_TYPES = { [0] = "data file", [1] = "procedure" }
for number = 2, 16 do FILE_TYPES[number] = "block file " .. number end
local FORMATS = { [1] = "XLS", [2] = "WKS", [3] = "DIF", [4] = "CSV", [5] = "TXT", [6] = "TXT(tab)" }
local SEEKS = { [0] = "from the start", [1] = "from here", [2] = "from the end" }
local CELLS = { [34] = "label", [135] = "number or formula" }

local f = {
  direction = ProtoField.string("organiser.direction", "Direction"),
  type = ProtoField.uint8("organiser.type", "Type", base.DEC, TYPES),
  sequence = ProtoField.uint8("organiser.sequence", "Sequence number"),
  escapes = ProtoField.uint32("organiser.escapes", "Escaped bytes"),
  data = ProtoField.bytes("organiser.data", "Data"),
  length = ProtoField.uint32("organiser.length", "Length of the data"),
  check = ProtoField.uint16("organiser.check", "Check", base.HEX),
  check_good = ProtoField.bool("organiser.check.good", "Check is right"),
  stray = ProtoField.bytes("organiser.stray", "Bytes of no frame"),
  repeated = ProtoField.bool("organiser.repeat", "Repeat of an earlier frame"),
  ack_in = ProtoField.framenum("organiser.ack_in", "Acknowledged in", base.NONE, frametype.ACK),
  ack_to = ProtoField.framenum("organiser.ack_to", "Acknowledges", base.NONE, frametype.ACK),
  ack_time = ProtoField.relative_time("organiser.ack_time", "Time to the acknowledgement"),
  service = ProtoField.string("organiser.service", "Service"),
  opens = ProtoField.bool("organiser.opens", "Opens the service"),
  operation = ProtoField.uint8("organiser.operation", "Operation", base.DEC, OPERATIONS),
  mode = ProtoField.uint8("organiser.mode", "Mode", base.DEC, MODES),
  kind = ProtoField.uint8("organiser.kind", "Kind", base.DEC, KINDS),
  file_type = ProtoField.uint8("organiser.file_type", "File type", base.DEC, FILE_TYPES),
  format = ProtoField.uint8("organiser.format", "Worksheet format", base.DEC, FORMATS, 0x7F),
  saves = ProtoField.bool("organiser.saves", "The Organiser sends the sheet", 8, nil, 0x80),
  name = ProtoField.string("organiser.name", "Name"),
  maximum = ProtoField.uint8("organiser.maximum", "Longest answer"),
  seek_mode = ProtoField.uint8("organiser.seek.mode", "Seek", base.DEC, SEEKS),
  seek_offset = ProtoField.string("organiser.seek.offset", "Offset"),
  columns = ProtoField.uint8("organiser.columns", "Columns"),
  rows = ProtoField.uint8("organiser.rows", "Rows"),
  cell = ProtoField.string("organiser.cell", "Cell"),
  cell_type = ProtoField.uint8("organiser.cell.type", "Type of the cell", base.DEC, CELLS),
  address = ProtoField.uint16("organiser.address", "Address", base.HEX),
  code_length = ProtoField.uint16("organiser.code_length", "Length of the code"),
  text = ProtoField.string("organiser.text", "Text"),
  code = ProtoField.uint8("organiser.code", "Reason", base.DEC, CODES),
}
organiser.fields = f

local e = {
  check = ProtoExpert.new("organiser.bad_check", "The check is wrong", expert.group.CHECKSUM, expert.severity.ERROR),
  stray = ProtoExpert.new("organiser.stray_bytes", "Bytes belong to no frame", expert.group.MALFORMED, expert.severity.WARN),
  repeated = ProtoExpert.new("organiser.repeated", "The frame was sent before", expert.group.SEQUENCE, expert.severity.NOTE),
  unknown = ProtoExpert.new("organiser.unknown_type", "The protocol has no such frame", expert.group.PROTOCOL, expert.severity.WARN),
  refused = ProtoExpert.new("organiser.refused", "The server refused", expert.group.RESPONSE_CODE, expert.severity.NOTE),
}
organiser.experts = e

local comment = Field.new("frame.comment")

-- The bytes of a string from one place to another, 0 for those behind its end.
local function at(text, place) return text:byte(place) or 0 end

local function crc16(text)
  local register = 0
  for i = 1, #text do
    register = bit.bxor(register, text:byte(i))
    for _ = 1, 8 do
      local low = bit.band(register, 1)
      register = bit.rshift(register, 1)
      if low == 1 then register = bit.bxor(register, 0xA001) end
    end
  end
  return register
end

-- State of the first pass, for each direction and for both.
local ways, link, packets

function organiser.init()
  ways = { [FROM_ORGANISER] = { rest = "" }, [FROM_SERVER] = { rest = "" } }
  link, packets = {}, {}
end

-- The place of the frame's last byte in a text that begins with a header; nothing while it is not there. The body
-- without its stuffing goes along.
local function frame_end(text)
  local body, place, escapes = {}, 4, 0
  while place <= #text do
    local byte = text:byte(place)
    if byte == DLE then
      local following = text:byte(place + 1)
      if not following then return nil end
      if following == ETX then
        if #text < place + 3 then return nil end
        return place + 3, table.concat(body), escapes
      end
      escapes = escapes + 1
      place = place + 1
    end
    body[#body + 1] = string.char(byte)
    place = place + 1
  end
  return nil
end

-- What the server's answer does to the open service.
local ENDS_WITH_REPLY = { TIME = true, GMT = true, TIMEINFO = true, PLANM = true }

-- Follows the conversation by a good DATA frame; returns what the frame is about.
local function follow_data(frame)
  local about = { service = link.service, last = link.request }
  if frame.direction == FROM_ORGANISER then
    if not link.service then
      link.service, link.asked = frame.data:upper(), 0
      about.service, about.opens = link.service, true
    else
      link.asked = link.asked + 1
    end
    about.asked = link.asked
    about.saves = link.saves
    if link.service == "PLAN" and link.asked == 1 then link.saves = at(frame.data, 1) >= 128 end
    link.request = { operation = frame.data:byte(1), opens = about.opens, asked = link.asked, saves = link.saves }
  else
    about.asked = link.asked
    about.saves = link.saves
    local closes = link.service == "FILE" and link.request and not link.request.opens and link.request.operation == 1
    if closes or ENDS_WITH_REPLY[link.service or ""] then link.service = nil end
  end
  return about
end

-- Follows the conversation by a good frame.
local function follow(frame, number, time)
  local own, other = ways[frame.direction], ways[1 - frame.direction]
  if frame.type == DATA then
    if own.last and own.last.wire == frame.wire then
      frame.repeated, frame.about = true, own.last.about
      own.last.copies = true
      return
    end
    frame.about = follow_data(frame)
    own.last = frame
  elseif frame.type == ACK then
    local data = other.last
    if data and data.sequence == frame.sequence and not data.ack_in then
      data.ack_in, frame.ack_to = number, data.number
      frame.ack_time = time - data.time
    end
  else
    frame.service = link.service
    if frame.type == CONNECT and own.last_connect then frame.repeated = true end
    ways[FROM_ORGANISER].last, ways[FROM_SERVER].last = nil, nil
    link = {}
  end
  own.last_connect = frame.type == CONNECT
end

-- One frame of the wire, header to check.
local function parse(wire, body, escapes, direction)
  local frame = { wire = wire, direction = direction, escapes = escapes, body = body }
  frame.check = wire:byte(-2) + 256 * wire:byte(-1)
  frame.good = #body >= 2 and crc16(body) == frame.check
  frame.type_byte = at(body, 2)
  frame.sequence = frame.type_byte % 8
  frame.type = frame.type_byte - frame.sequence
  frame.data = body:sub(3)
  return frame
end

-- Cuts a packet's bytes, behind what is left of the ones before, into frames and stray bytes.
local function first_pass(bytes, direction, number, time)
  local way, found = ways[direction], {}
  local held = #way.rest
  local text = way.rest .. bytes
  local position = 1 -- in text; the packet's own bytes begin behind those that were held
  while true do
    local header = text:find("\22\16\2", position, true)
    local stop = header or math.max(#text - 1, position)
    if not header then
      -- The last bytes may begin a header.
      if text:sub(-1) ~= "\22" and text:sub(-2) ~= "\22\16" then stop = #text + 1
      elseif text:sub(-1) == "\22" then stop = #text end
    end
    if stop > position then
      found[#found + 1] = { stray = text:sub(position, stop - 1), offset = position - 1 - held }
    end
    position = stop
    if not header then break end
    local last, body, escapes = frame_end(text:sub(header))
    if not last then break end
    local frame = parse(text:sub(header, header + last - 1), body, escapes, direction)
    frame.offset, frame.number, frame.time = header - 1 - held, number, time
    if frame.good then follow(frame, number, time) end
    found[#found + 1] = frame
    position = header + last
  end
  way.rest = text:sub(position)
  return found
end

-- A range of the packet for bytes that begin at an offset, or one of its own when they began in an earlier packet.
local function range_of(tvb, wire, offset, name)
  if offset >= 0 then return tvb(offset, #wire) end
  return ByteArray.new(wire, true):tvb(name):range()
end

-- The data without stuffing as a range.
local function data_range(frame, range)
  if frame.escapes == 0 then return range(5, #frame.data) end
  return ByteArray.new(frame.data, true):tvb("Data without stuffing"):range()
end

local function add_rest(tree, field, data, from)
  if data:len() > from then tree:add(field, data(from)) end
  return data:len() > from and data(from):string() or ""
end

-- Cell names as the Organiser shows them: column, row.
local function cell_name(data) return string.char(65 + data(0, 1):uint() % 26) .. (data(1, 1):uint() + 1) end

local function add_cell(tree, data)
  if data(0, 1):uint() == 254 then return "end of the sheet" end
  if data:len() < 3 then return "ready" end
  tree:add(f.cell, data(0, 2), cell_name(data))
  tree:add(f.cell_type, data(2, 1))
  return "cell " .. cell_name(data) .. " " .. add_rest(tree, f.text, data, 3)
end

-- Each returns what the info column says. `data` has at least one byte.
local requests = {}

function requests.FTRAN(tree, data)
  local operation = data(0, 1):uint()
  tree:add(f.operation, data(0, 1))
  local words = OPERATIONS[operation] or "unknown operation"
  if operation == 0 and data:len() >= 3 then
    tree:add(f.mode, data(1, 1))
    tree:add(f.file_type, data(2, 1))
    return words .. " " .. add_rest(tree, f.name, data, 3) .. " (" .. (MODES[data(1, 1):uint()] or "?") .. ")"
  elseif operation == 2 then
    return words .. " " .. data:len() - 1 .. " bytes"
  elseif operation == 3 and data:len() >= 2 then
    tree:add(f.maximum, data(1, 1))
  end
  return words
end

function requests.FILE(tree, data)
  local operation = data(0, 1):uint()
  if operation == 0 and data:len() >= 3 then
    tree:add(f.operation, data(0, 1))
    tree:add(f.mode, data(1, 1))
    tree:add(f.kind, data(2, 1))
    return "open " .. add_rest(tree, f.name, data, 3) .. " (" .. (MODES[data(1, 1):uint()] or "?") .. ")"
  elseif operation == 4 and data:len() >= 2 then
    tree:add(f.operation, data(0, 1))
    tree:add(f.seek_mode, data(1, 1))
    return "seek " .. add_rest(tree, f.seek_offset, data, 2) .. " " .. (SEEKS[data(1, 1):uint()] or "?")
  end
  return requests.FTRAN(tree, data)
end

function requests.BOOT(tree, data, about)
  if about.asked == 1 then return "fetch " .. add_rest(tree, f.name, data, 0) end
  if about.asked == 2 and data:len() >= 2 then
    tree:add(f.address, data(0, 2))
    return string.format("load at %04X", data(0, 2):uint())
  end
  return "next"
end

function requests.PLAN(tree, data, about)
  if about.asked == 1 then
    tree:add(f.saves, data(0, 1))
    tree:add(f.format, data(0, 1))
    local words = data(0, 1):uint() >= 128 and "save " or "load "
    return words .. add_rest(tree, f.name, data, 1) .. " as " .. (FORMATS[data(0, 1):uint() % 128] or "?")
  elseif about.asked == 2 and about.saves and data:len() >= 2 then
    tree:add(f.columns, data(0, 1))
    tree:add(f.rows, data(1, 1))
    return data(0, 1):uint() .. " columns, " .. data(1, 1):uint() .. " rows"
  end
  return about.saves and add_cell(tree, data) or "next"
end

local replies = {}

function replies.BOOT(tree, data, about)
  if about.asked == 1 and data:len() >= 2 then
    tree:add(f.code_length, data(0, 2))
    return data(0, 2):uint() .. " bytes of code"
  elseif data:len() >= 2 then
    tree:add(f.address, data(0, 2))
    return string.format("%d bytes for %04X", data:len() - 2, data(0, 2):uint())
  end
  return ""
end

function replies.PLAN(tree, data, about)
  if about.asked >= 2 and not about.saves then return add_cell(tree, data) end
  return data(0, 1):uint() == 254 and "saved" or "ready"
end

function replies.PLANM(tree, data)
  local place, names = 0, {}
  while place < data:len() do
    local length = data(place, 1):uint()
    if length == 0 or place + length + 3 > data:len() then break end
    tree:add(f.format, data(place + length + 2, 1))
    names[#names + 1] = data(place + 1, length):string()
    place = place + length + 3
  end
  return table.concat(names, ", ")
end

local function clock(tree, data)
  tree:add(f.text, data())
  return data():string()
end
replies.TIME, replies.GMT, replies.TIMEINFO = clock, clock, clock

function replies.FILE(tree, data, about)
  local operation = about.last and about.last.operation
  if operation == 4 then return "now at " .. add_rest(tree, f.text, data, 0) end
  return data:len() .. " bytes"
end
replies.FTRAN = replies.FILE

-- What a DATA frame says; returns words for the info column.
local function add_data(tree, frame, range)
  local about = frame.about
  tree:add(f.length, #frame.data):set_generated()
  local data
  if #frame.data > 0 then
    data = data_range(frame, range)
    tree:add(f.data, data)
  end
  if not about then return "" end
  if about.service then tree:add(f.service, about.service):set_generated() end
  if about.opens then
    tree:add(f.opens, true):set_generated()
    return "open service " .. about.service
  end
  local service = about.service or ""
  local from_organiser = frame.direction == FROM_ORGANISER
  local dissect = (from_organiser and requests or replies)[service]
  local words = from_organiser and "next" or "done"
  if data and dissect then words = dissect(tree, data, about) end
  return service .. " " .. words
end

local function add_frame(tvb, pinfo, tree, frame)
  local range = range_of(tvb, frame.wire, frame.offset, "Frame")
  local name = TYPES[frame.type] or ("type " .. frame.type)
  local subtree = tree:add(organiser, range)
  subtree:add(f.direction, frame.direction == FROM_ORGANISER and "from the Organiser" or "from the server"):set_generated()
  if #frame.body >= 2 then
    local type_place = frame.wire:byte(4) == DLE and 5 or 4 -- a lead byte 10 would be doubled
    subtree:add(f.type, range(type_place, 1), frame.type)
    subtree:add(f.sequence, range(type_place, 1), frame.sequence)
  end
  subtree:add(f.escapes, frame.escapes):set_generated()
  local words = ""
  if frame.type == DATA and #frame.body >= 2 then
    words = add_data(subtree, frame, range)
  elseif frame.type == DISCON and #frame.data == 1 then
    subtree:add(f.code, data_range(frame, range))
    words = CODES[at(frame.data, 1)] or tostring(at(frame.data, 1))
    if frame.direction == FROM_SERVER and at(frame.data, 1) ~= 0 then subtree:add_proto_expert_info(e.refused) end
  elseif #frame.data > 0 then
    subtree:add(f.data, data_range(frame, range))
  end
  subtree:add_le(f.check, range(#frame.wire - 2, 2))
  subtree:add(f.check_good, frame.good):set_generated()
  if frame.ack_in then subtree:add(f.ack_in, frame.ack_in):set_generated() end
  if frame.ack_to then
    subtree:add(f.ack_to, frame.ack_to):set_generated()
    local nanoseconds = math.floor(frame.ack_time * 1e9 + 0.5)
    subtree:add(f.ack_time, NSTime(math.floor(nanoseconds / 1e9), nanoseconds % 1e9)):set_generated()
  end
  if frame.repeated then
    subtree:add(f.repeated, true):set_generated()
    subtree:add_proto_expert_info(e.repeated)
  end
  if not frame.good then
    subtree:add_proto_expert_info(e.check)
    words = (words ~= "" and words .. " " or "") .. "[bad check]"
  elseif not TYPES[frame.type] then
    subtree:add_proto_expert_info(e.unknown)
  end
  local numbered = (frame.type == ACK or frame.type == DATA) and " " .. frame.sequence or ""
  words = name .. numbered .. (words ~= "" and ": " .. words or "") .. (frame.repeated and " [repeat]" or "")
  subtree:append_text(", " .. words)
  return words
end

local function add_stray(tvb, tree, found)
  local range = range_of(tvb, found.stray, found.offset, "Bytes of no frame")
  local subtree = tree:add(organiser, range)
  subtree:add(f.stray, range)
  subtree:add_proto_expert_info(e.stray)
  return "[" .. #found.stray .. " stray bytes]"
end

function organiser.dissector(tvb, pinfo, tree)
  pinfo.cols.protocol = "Organiser"
  local direction = pinfo.p2p_dir
  if direction ~= FROM_ORGANISER and direction ~= FROM_SERVER then
    local text = comment()
    pinfo.cols.info = text and tostring(text.value) or ""
    return
  end
  pinfo.cols.src = direction == FROM_ORGANISER and "Organiser" or "server"
  pinfo.cols.dst = direction == FROM_ORGANISER and "server" or "Organiser"
  if not packets[pinfo.number] then
    packets[pinfo.number] = first_pass(tvb():raw(), direction, pinfo.number, tonumber(tostring(pinfo.rel_ts)))
  end
  local infos = {}
  for _, found in ipairs(packets[pinfo.number]) do
    infos[#infos + 1] = found.stray and add_stray(tvb, tree, found) or add_frame(tvb, pinfo, tree, found)
  end
  pinfo.cols.info = #infos > 0 and table.concat(infos, "; ") or "[part of a frame]"
end

DissectorTable.get("wtap_encap"):add(wtap.USER0, organiser)
