//==== top.v ====
//top d
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)




//masks K=12 d q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mgv21
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [4:0]  d;
	output   [4:0]  q;

	wire  [4:0]  mask;

	assign
		mask = 5'b01100,
		q = (d ^ mask);
endmodule //top_mgv21


//masks K=21 d q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mg031
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [4:0]  d;
	output   [4:0]  q;

	wire  [4:0]  mask;

	assign
		mask = 5'b10101,
		q = (d ^ mask);
endmodule //top_mg031


//masks K=13 d q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mg131
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [4:0]  d;
	output   [4:0]  q;

	wire  [4:0]  mask;

	assign
		mask = 5'b01101,
		q = (d ^ mask);
endmodule //top_mg131

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

	top_mgv21   m1
	( 
	.d(d),
	.q(wire_m1_q));
	top_mg031   m2
	( 
	.d(wire_m1_q),
	.q(wire_m2_q));
	top_mg131   m3
	( 
	.d(wire_m2_q),
	.q(wire_m3_q));
	assign
		q = wire_m3_q;
endmodule //top
//VALID FILE
