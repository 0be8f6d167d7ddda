//==== mgpa4.v ====
//stage HELD=1 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
//


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  mgpa4
	( 
	d,
	en,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [1:0]  d;
	input   en;
	output   [1:0]  q;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_off
`endif
	tri1   en;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_on
`endif

	wire  [1:0]  keep;

	assign
		keep = 2'b10,
		q = ((d & keep) ^ {2{en}});
endmodule //mgpa4
//VALID FILE
//==== mgqa4.v ====
//stage HELD=2 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
//


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  mgqa4
	( 
	d,
	en,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [1:0]  d;
	input   en;
	output   [1:0]  q;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_off
`endif
	tri1   en;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_on
`endif

	wire  [1:0]  keep;

	assign
		keep = 2'b01,
		q = ((d & keep) ^ {2{en}});
endmodule //mgqa4
//VALID FILE
//==== top.v ====
//top LBX_SINGLE_OUTPUT_FILE="OFF" bit pair six
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	bit,
	pair,
	q,
	six) /* synthesis synthesis_lumenbox=1 */;
	input   bit;
	input   [1:0]  pair;
	output   [5:0]  q;
	input   [5:0]  six;

	wire  [5:0]   wire_st_d;
	wire  [5:0]   wire_st_q;

	mgpa4   st_0
	( 
	.d(wire_st_d[1:0]),
	.en(bit),
	.q(wire_st_q[1:0]));
	mgqa4   st_1
	( 
	.d(wire_st_d[3:2]),
	.en(bit),
	.q(wire_st_q[3:2]));
	mgpa4   st_2
	( 
	.d(wire_st_d[5:4]),
	.en(bit),
	.q(wire_st_q[5:4]));
	assign
		wire_st_d = six;
	assign
		q = wire_st_q;
endmodule //top
//VALID FILE
