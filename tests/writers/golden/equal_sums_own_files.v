//==== mghr3.v ====
//masks K=12 LBX_SINGLE_OUTPUT_FILE="OFF" d q
//


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  mghr3
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [4:0]  d;
	output   [4:0]  q;

	wire  [4:0]  mask;

	assign
		mask = 5'b01100,
		q = (d ^ mask);
endmodule //mghr3
//VALID FILE
//==== mgir3.v ====
//masks K=21 LBX_SINGLE_OUTPUT_FILE="OFF" d q
//


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  mgir3
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [4:0]  d;
	output   [4:0]  q;

	wire  [4:0]  mask;

	assign
		mask = 5'b10101,
		q = (d ^ mask);
endmodule //mgir3
//VALID FILE
//==== mgjr3.v ====
//masks K=13 LBX_SINGLE_OUTPUT_FILE="OFF" d q
//


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  mgjr3
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [4:0]  d;
	output   [4:0]  q;

	wire  [4:0]  mask;

	assign
		mask = 5'b01101,
		q = (d ^ mask);
endmodule //mgjr3
//VALID FILE
//==== top.v ====
//top LBX_SINGLE_OUTPUT_FILE="OFF" d
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
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [4:0]  d;
	output   [4:0]  q;

	wire  [4:0]   wire_m1_q;
	wire  [4:0]   wire_m2_q;
	wire  [4:0]   wire_m3_q;

	mghr3   m1
	( 
	.d(d),
	.q(wire_m1_q));
	mgir3   m2
	( 
	.d(wire_m1_q),
	.q(wire_m2_q));
	mgjr3   m3
	( 
	.d(wire_m2_q),
	.q(wire_m3_q));
	assign
		q = wire_m3_q;
endmodule //top
//VALID FILE
